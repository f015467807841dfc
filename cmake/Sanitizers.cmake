# RANKER_SANITIZE puts the sanitizers into every target, libraries included; a finding ends the run.
if(RANKER_SANITIZE)
  add_compile_options(-fsanitize=${RANKER_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${RANKER_SANITIZE} -fno-sanitize-recover=all)
endif()
