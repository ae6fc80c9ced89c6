# Which headers are public: installed with the package, and described by the reference pages.
#
# As a script it writes them, one per line and relative to the repository, for the houses asked for:
#     cmake -DHOUSES="framework;toolkit;ky" -DLIST=headers.txt -P cmake/KyPublicHeaders.cmake
if(CMAKE_SCRIPT_MODE_FILE)
    cmake_minimum_required(VERSION 3.25)
endif()
get_filename_component(KY_SOURCE_ROOT ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)

# ky_reachable_headers(RESULT HOUSE HEADER...): the headers, relative to the house's folder, with all that they include
# in quotes.
function(ky_reachable_headers result house)
    set(root ${KY_SOURCE_ROOT}/${house})
    set(waiting ${ARGN})
    set(found "")
    while(waiting)
        list(POP_FRONT waiting header)
        if(header IN_LIST found)
            continue()
        endif()
        list(APPEND found ${header})
        get_filename_component(folder ${root}/${header} DIRECTORY)
        file(STRINGS ${root}/${header} lines REGEX "^#include \"")
        foreach(line IN LISTS lines)
            string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${line}")
            get_filename_component(path ${folder}/${included} ABSOLUTE)
            if(NOT EXISTS ${path})
                message(FATAL_ERROR "${house}/${header} includes ${included}, which is not there")
            endif()
            file(RELATIVE_PATH path ${root} ${path})
            list(APPEND waiting ${path})
        endforeach()
    endwhile()
    set(${result} ${found} PARENT_SCOPE)
endfunction()

# ky_public_headers(RESULT HOUSE): relative to the house's folder.
function(ky_public_headers result house)
    if(house STREQUAL "framework")
        file(GLOB entry_headers RELATIVE ${KY_SOURCE_ROOT}/framework
            ${KY_SOURCE_ROOT}/framework/include/afx*.h ${KY_SOURCE_ROOT}/framework/include/atl*.h)
    elseif(house STREQUAL "toolkit")
        set(entry_headers include/XTToolkitPro.h)
    elseif(house STREQUAL "ky")
        set(entry_headers
            common/KyMessages.h
            common/MissingValue.h
            common/ParseDouble.h
            common/Translation.h
            plotcells/KyBarChartRecordItem.h
            plotcells/KyDragLineMinMaxRecordItem.h
            plotcells/KyDragLineRecordItem.h
            plotcells/KyHistogramRecordItem.h
            plotcells/KyPlotRecordItem.h
            plotcells/KyPlotRecordReportControl.h
            reportgrid/KyDialogReportControlTheme.h
            reportgrid/KyInPlaceEdit.h
            reportgrid/KyReportControl.h
            reportgrid/KyReportControlHelpers.h
            reportgrid/KyReportHeader.h
            reportgrid/KyReportRecordItemFloat.h
            themes/KyPaintTheme.h
            themes/Themes.h)
    else()
        message(FATAL_ERROR "there is no house '${house}' with public headers; they are framework, toolkit and ky")
    endif()
    ky_reachable_headers(headers ${house} ${entry_headers})
    set(${result} ${headers} PARENT_SCOPE)
endfunction()

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
    file(WRITE ${LIST} "")
    foreach(house IN LISTS HOUSES)
        ky_public_headers(headers ${house})
        foreach(header IN LISTS headers)
            file(APPEND ${LIST} "${house}/${header}\n")
        endforeach()
    endforeach()
endif()
