# Every target of the house links ranker_warnings: the same warnings for GCC and Clang, as errors.
add_library(ranker_warnings INTERFACE)
target_compile_options(ranker_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
