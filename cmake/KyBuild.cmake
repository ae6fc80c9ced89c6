# Build rules that every house shares: language level, warnings, sanitizers, compiler cache, library helpers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS ON) # mingw's headers need the GNU dialect
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # Precompiled headers are cacheable only when ccache may overlook what they bring in themselves. They hold the paths of
    # their headers, so that one made in another checkout does not fit here: each checkout has a cache of its own.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_NAMESPACE=${CMAKE_SOURCE_DIR} ${CCACHE_PROGRAM})
    add_compile_options(-fpch-preprocess)
endif()

add_compile_options(-Wall -Wextra -Werror)
if(WIN32)
    set(KY_WINDOWS_DEFINITIONS UNICODE _UNICODE STRICT NOMINMAX WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0800)
    add_compile_definitions(${KY_WINDOWS_DEFINITIONS})
    # Message-map thunks and event signatures leave parameters unused by design of the interface.
    add_compile_options(-Wno-unused-parameter -Wno-cast-function-type)
else()
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
option(KY_FUZZ "Build the fuzzers (Linux, clang)" OFF)
if(KY_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# The compiler's shared runtime stands beside the programs: exceptions and dynamic_cast cross the DLLs only when all of
# them use the same copy, and Windows looks for DLLs in the program's own folder first.
if(WIN32)
    foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
            OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        file(COPY ${path} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
        list(APPEND KY_RUNTIME_DLLS ${path})
    endforeach()
endif()

# ky_add_pure_library(NAME SOURCES...): functions that need no window; built for Windows and for Linux.
function(ky_add_pure_library name)
    add_library(${name} STATIC ${ARGN})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# ky_add_house(NAME EXPORT_DEFINE define DESCRIPTION text SOURCES...): one DLL of the house, exporting through its own
# macro; the description and the project's version are in its resources.
function(ky_add_house name)
    cmake_parse_arguments(ARG "" "EXPORT_DEFINE;DESCRIPTION" "SOURCES" ${ARGN})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/VersionInfo.rc.in ${name}.rc @ONLY)
    add_library(${name} SHARED ${ARG_SOURCES} ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc)
    target_compile_definitions(${name} PRIVATE ${ARG_EXPORT_DEFINE})
    set_target_properties(${name} PROPERTIES PREFIX "" IMPORT_PREFIX "lib" VERSION ${PROJECT_VERSION})
    add_library(KyControls::${name} ALIAS ${name}) # as programs outside of the tree call it
endfunction()

# Programs outside of the tree call this; those in it stand beside the DLLs already.
function(kycontrols_deploy target)
endfunction()

include(KyDependencies)
