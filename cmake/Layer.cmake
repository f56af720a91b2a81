# SPDX-License-Identifier: GPL-3.0-or-later
# deckforge_layer(NAME USES layers... [LIBRARIES libraries...] [PRIVATE libraries...])
#
# Builds a static library from all sources of the current folder. Headers are included as "folder/Header.h". USES lists
# every other layer whose headers the folder may include; a test reads these lists and checks all includes.
function(deckforge_layer name)
    cmake_parse_arguments(layer "" "" "USES;LIBRARIES;PRIVATE" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h *.ui *.qrc)
    add_library(deckforge_${name} STATIC ${sources})
    target_include_directories(deckforge_${name} PUBLIC ${PROJECT_SOURCE_DIR})
    list(TRANSFORM layer_USES PREPEND deckforge_ OUTPUT_VARIABLE used)
    target_link_libraries(deckforge_${name}
        PUBLIC ${used} ${layer_LIBRARIES}
        PRIVATE deckforge_flags ${layer_PRIVATE})
    list(JOIN layer_USES " " edges)
    set_property(GLOBAL APPEND_STRING PROPERTY DECKFORGE_LAYERS "${name}: ${edges}\n")
endfunction()
