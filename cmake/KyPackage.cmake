# What `cmake --install` and tools/package deliver: DLLs, import libraries, public headers, translations, the CMake
# package KyControls, and the notices of the libraries that are shipped along.
#
#   README.md                    what it is, what holds for the parts that are not ours
#   bin                          DLLs, those of the compiler's runtime and Boost.Locale among them; locale/
#   lib, lib/cmake/KyControls    import libraries, the entry point's library, the package's description
#   include/kycontrols           framework/, toolkit/, ky/: each house's headers, in folders as in the source
#   share/doc/kycontrols         the guides; reference/, the pages of every class; examples/, a project; licenses/
#
# docs/using.md lists this for those who use it; tests/package holds the two together.
include(CMakePackageConfigHelpers)

include(KyPublicHeaders)
# A new header of the framework's include folder is public.
file(GLOB framework_headers CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/framework/include/afx*.h ${PROJECT_SOURCE_DIR}/framework/include/atl*.h)
foreach(house framework toolkit ky)
    ky_public_headers(headers ${house})
    foreach(header IN LISTS headers)
        # A change of the header may bring in others: CMake has to look again.
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${house}/${header})
        get_filename_component(folder ${header} DIRECTORY)
        install(FILES ${PROJECT_SOURCE_DIR}/${house}/${header} DESTINATION include/kycontrols/${house}/${folder})
    endforeach()
endforeach()

# Programs are compiled as the DLLs were: Unicode, the same Windows version, the same dialect.
target_compile_definitions(kyframework INTERFACE "$<INSTALL_INTERFACE:${KY_WINDOWS_DEFINITIONS}>")
target_compile_features(kyframework INTERFACE cxx_std_20)
target_include_directories(kyframework INTERFACE $<INSTALL_INTERFACE:include/kycontrols/framework/include>)
target_include_directories(kytoolkit INTERFACE $<INSTALL_INTERFACE:include/kycontrols/toolkit/include>)
target_include_directories(kyui INTERFACE $<INSTALL_INTERFACE:include/kycontrols/ky>)

install(TARGETS kyframework kyframework_main kytoolkit kyui EXPORT KyControlsTargets
    RUNTIME DESTINATION bin ARCHIVE DESTINATION lib)
install(EXPORT KyControlsTargets NAMESPACE KyControls:: DESTINATION lib/cmake/KyControls)
configure_package_config_file(cmake/KyControlsConfig.cmake.in ${CMAKE_BINARY_DIR}/KyControlsConfig.cmake
    INSTALL_DESTINATION lib/cmake/KyControls)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/KyControlsConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/KyControlsConfig.cmake ${CMAKE_BINARY_DIR}/KyControlsConfigVersion.cmake
    DESTINATION lib/cmake/KyControls)

install(PROGRAMS ${KY_RUNTIME_DLLS} DESTINATION bin)
# CMake strips what was built here; the runtime's own symbols are ten times the size of the rest.
foreach(dll IN LISTS KY_RUNTIME_DLLS)
    get_filename_component(name ${dll} NAME)
    install(CODE "if(CMAKE_INSTALL_DO_STRIP)
    execute_process(COMMAND \"${CMAKE_STRIP}\" \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin/${name}\"
        COMMAND_ERROR_IS_FATAL ANY)
endif()")
endforeach()
install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/locale DESTINATION bin)

install(FILES docs/package.md DESTINATION . RENAME README.md)
set(documentation share/doc/kycontrols)
install(FILES docs/using.md docs/layers.md docs/host.md docs/plot-cell.md docs/keyboard.md docs/looks.md
    DESTINATION ${documentation})
install(FILES docs/images/bullet-cell.png docs/images/readings.png DESTINATION ${documentation}/images)
install(DIRECTORY docs/examples DESTINATION ${documentation})
# The reference pages, where tools/reference has made them, as tools/package lets it do.
install(DIRECTORY build/reference/html/ DESTINATION ${documentation}/reference OPTIONAL)

# Notices, by the Debian package that each shipped library comes from. Debian refers to the long texts of the GNU
# licences, which Windows does not have; they go along.
set(notices ${documentation}/licenses)
install(FILES /usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright DESTINATION ${notices}
    RENAME libstdc++-and-libgcc.txt)
install(FILES /usr/share/doc/mingw-w64-x86-64-dev/copyright DESTINATION ${notices} RENAME libwinpthread.txt)
install(FILES /usr/share/doc/libboost1.81-dev/copyright DESTINATION ${notices} RENAME libboost_locale.txt)
install(FILES /usr/share/doc/libpugixml-dev/copyright DESTINATION ${notices} RENAME pugixml.txt)
install(FILES /usr/share/common-licenses/GPL-3 /usr/share/common-licenses/LGPL-2.1 DESTINATION ${notices})

# The zip. Who makes it has built what is in it, see tools/package.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_NAME KyControls)
set(CPACK_PACKAGE_FILE_NAME KyControls-${PROJECT_VERSION}-win64)
set(CPACK_STRIP_FILES ON)
include(CPack)
