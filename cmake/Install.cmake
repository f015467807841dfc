# What a host needs to build against the module: libraries, headers by their rooms, package files. The desk
# goes along where it is built.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(headers_dir ${CMAKE_INSTALL_INCLUDEDIR}/RankerModule)
set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/RankerModule)

# The rooms' plain names would be too common in a library folder.
set_target_properties(platform PROPERTIES OUTPUT_NAME RankerPlatform)
set_target_properties(griditem PROPERTIES OUTPUT_NAME RankerGridItem)
set_target_properties(bartext PROPERTIES OUTPUT_NAME RankerBarText)
foreach(library platform griditem bartext RankerModule)
  set_target_properties(${library} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH "$ORIGIN")
  target_include_directories(${library} PUBLIC $<INSTALL_INTERFACE:${headers_dir}>)
  target_compile_features(${library} PUBLIC cxx_std_20)
endforeach()

# The C library has a version of its own, and its header a folder of its own, for C compilers.
set_target_properties(ranker_c PROPERTIES INSTALL_RPATH "$ORIGIN")
target_include_directories(ranker_c INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/RankerC>)
install(FILES c/rankermodule.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/RankerC COMPONENT module)

install(TARGETS platform griditem bartext RankerModule ranker_c EXPORT RankerModule
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT module NAMELINK_COMPONENT module
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT module
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT module)
if(TARGET RankerWin32)
  target_include_directories(RankerWin32 PUBLIC $<INSTALL_INTERFACE:${headers_dir}>)
  install(TARGETS RankerWin32 EXPORT RankerModule
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT module
          RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT module)
  install(FILES win32/Export.h win32/Win32Display.h DESTINATION ${headers_dir}/win32 COMPONENT module)
endif()
if(TARGET windows_host)
  install(TARGETS windows_host RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT module)
endif()
install(FILES RankerModule.h DESTINATION ${headers_dir} COMPONENT module)
foreach(room platform griditem bartext host tables rankers panels pickers geometry)
  install(DIRECTORY ${room} DESTINATION ${headers_dir} COMPONENT module FILES_MATCHING PATTERN "*.h"
          PATTERN "private" EXCLUDE)
endforeach()

install(EXPORT RankerModule NAMESPACE RankerModule:: FILE RankerModuleTargets.cmake
        DESTINATION ${config_dir} COMPONENT module)
configure_package_config_file(cmake/RankerModuleConfig.cmake.in RankerModuleConfig.cmake
  INSTALL_DESTINATION ${config_dir})
write_basic_package_version_file(RankerModuleConfigVersion.cmake COMPATIBILITY SameMajorVersion)
file(RELATIVE_PATH pc_to_prefix /p/${CMAKE_INSTALL_LIBDIR}/pkgconfig /p)
configure_file(cmake/RankerModule.pc.in RankerModule.pc @ONLY)
configure_file(cmake/RankerC.pc.in RankerC.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/RankerModuleConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/RankerModuleConfigVersion.cmake
        DESTINATION ${config_dir} COMPONENT module)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/RankerModule.pc ${CMAKE_CURRENT_BINARY_DIR}/RankerC.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT module)

if(TARGET beamdesk)
  set_target_properties(beamdesk PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS beamdesk RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT desk)
endif()
if(TARGET beamdesk AND UNIX)
  install(FILES docs/beamdesk.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT desk)
  install(FILES desk/beamdesk.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
          RENAME beamdesk COMPONENT desk)
  install(FILES desk/beamdesk.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT desk)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME beamdesk)
set(CPACK_PACKAGE_VENDOR "RankerModule")
set(CPACK_PACKAGE_CONTACT "the maintainers of RankerModule <maintainers@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-wqy-microhei, qt6-translations-l10n")
set(CPACK_STRIP_FILES ON)
include(CPack)
