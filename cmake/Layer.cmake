# deckforge_layer(NAME USES libraries... [PRIVATE libraries...])
#
# One static library from all sources of the current folder. Headers are included as "folder/Header.h".
function(deckforge_layer name)
    cmake_parse_arguments(layer "" "" "USES;PRIVATE" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h *.ui *.qrc)
    add_library(deckforge_${name} STATIC ${sources})
    target_include_directories(deckforge_${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(deckforge_${name} PUBLIC ${layer_USES} PRIVATE ${layer_PRIVATE})
endfunction()
