# What the houses stand on besides their platform. tools/setup puts it into KY_DEPS_DIR; Debian has the rest.
#
#   Boost::headers   Boost's header-only libraries
#   Boost::locale    Boost.Locale as a DLL (Windows builds only); its copy beside the programs is made here
#   pugixml::pugixml pugixml with UTF-16 texts, static (Windows builds only)
#   GTest::gtest, GTest::gtest_main, GTest::gmock, GTest::gmock_main

if(NOT EXISTS ${KY_DEPS_DIR}/include/boost/version.hpp)
    message(FATAL_ERROR "There is no Boost in ${KY_DEPS_DIR}. Run ./test or tools/setup/boost-locale.sh first.")
endif()

add_library(Boost::headers INTERFACE IMPORTED GLOBAL)
set_target_properties(Boost::headers PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${KY_DEPS_DIR}/include)

if(WIN32)
    add_library(Boost::locale SHARED IMPORTED GLOBAL)
    set_target_properties(Boost::locale PROPERTIES
        IMPORTED_LOCATION ${KY_DEPS_DIR}/bin/libboost_locale.dll
        IMPORTED_IMPLIB ${KY_DEPS_DIR}/lib/libboost_locale.dll.a
        INTERFACE_COMPILE_DEFINITIONS "BOOST_LOCALE_DYN_LINK;BOOST_ALL_NO_LIB"
        INTERFACE_LINK_LIBRARIES Boost::headers)
    file(COPY ${KY_DEPS_DIR}/bin/libboost_locale.dll DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    list(APPEND KY_RUNTIME_DLLS ${KY_DEPS_DIR}/bin/libboost_locale.dll)

    if(NOT EXISTS ${KY_DEPS_DIR}/lib/libpugixml.a)
        message(FATAL_ERROR "There is no pugixml in ${KY_DEPS_DIR}. Run ./test or tools/setup/pugixml.sh first.")
    endif()
    add_library(pugixml::pugixml STATIC IMPORTED GLOBAL)
    set_target_properties(pugixml::pugixml PROPERTIES
        IMPORTED_LOCATION ${KY_DEPS_DIR}/lib/libpugixml.a
        INTERFACE_INCLUDE_DIRECTORIES ${KY_DEPS_DIR}/include/pugixml
        INTERFACE_COMPILE_DEFINITIONS "PUGIXML_WCHAR_MODE;PUGIXML_NO_XPATH")
endif()

# GoogleTest is compiled in each build: it must have the same runtime and the same sanitizers as the tests.
set(INSTALL_GTEST OFF)
set(gtest_disable_pthreads OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
foreach(target gtest gtest_main gmock gmock_main)
    target_compile_options(${target} PRIVATE -w)
    if(NOT TARGET GTest::${target})
        add_library(GTest::${target} ALIAS ${target})
    endif()
endforeach()

# ky_add_test_program(NAME SOURCES source... LIBRARIES library...): one program of many tests, and its entry in CTest.
# Programs with windows take turns: they share one desktop, one keyboard and one clipboard.
function(ky_add_test_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} GTest::gmock)
    if(WIN32)
        add_test(NAME windows.${name} COMMAND ${name})
        set_tests_properties(windows.${name} PROPERTIES TIMEOUT 300 RESOURCE_LOCK desktop)
    else()
        add_test(NAME native.${name} COMMAND ${name})
        set_tests_properties(native.${name} PROPERTIES TIMEOUT 300)
    endif()
endfunction()
