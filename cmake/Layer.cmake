# tembra_layer(<name> FOLDER <folder under src> SOURCES <files…> USES <targets…> [PRIVATE_USES <targets…>]
#              [HEADERS core|widgets])
#
# HEADERS chooses the precompiled Qt headers that the layer shares with its like.
#
# A layer is a static library whose headers are included as "<folder>/<Header.h>". Its include root holds nothing but
# a link to its own folder, so that a header of a layer that is not linked cannot be found: a wrong include does not
# build.
function(tembra_layer name)
  cmake_parse_arguments(LAYER "" "FOLDER;HEADERS" "SOURCES;USES;PRIVATE_USES" ${ARGN})
  set(target tembra_${name})
  set(include_root ${PROJECT_BINARY_DIR}/layers/${name})
  cmake_path(GET LAYER_FOLDER PARENT_PATH parent)
  file(MAKE_DIRECTORY ${include_root}/${parent})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${LAYER_FOLDER} ${include_root}/${LAYER_FOLDER} SYMBOLIC)
  add_library(${target} STATIC ${LAYER_SOURCES})
  target_include_directories(${target} PUBLIC ${include_root})
  target_link_libraries(${target} PUBLIC ${LAYER_USES} PRIVATE ${LAYER_PRIVATE_USES} tembra_warnings)
  if(TEMBRA_COVERAGE AND LAYER_FOLDER IN_LIST tembra_models)
    target_link_libraries(${target} PRIVATE tembra_counted)
    target_link_options(${target} INTERFACE --coverage)
    if(LAYER_HEADERS)
      string(APPEND LAYER_HEADERS _counted)
    endif()
  endif()
  if(LAYER_HEADERS)
    target_precompile_headers(${target} REUSE_FROM tembra_headers_${LAYER_HEADERS})
  endif()
endfunction()

# The layers whose coverage `tools/coverage` tells: the models, and the layers of widgets that hold rules as well. What is
# inlined would be counted where it goes, so nothing is.
set(tembra_models base imaging settings shortcut updates screenshots tray doctor editor/model editor/documents
  recognition/model session editor/canvas shelf)
add_library(tembra_counted INTERFACE)
target_compile_options(tembra_counted INTERFACE -O0 -g0 --coverage -fprofile-update=atomic)

# Two sets of precompiled headers, one for everything without widgets and one for everything with them. They are built
# with every definition that the layers may bring, so that each layer can use them.
function(tembra_precompiled_headers name headers)
  set(target tembra_headers_${name})
  add_library(${target} STATIC ${PROJECT_SOURCE_DIR}/cmake/empty.cpp)
  target_link_libraries(${target} PRIVATE ${ARGN} tembra_warnings)
  target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/${headers}_headers.h)
endfunction()

tembra_precompiled_headers(core core Qt6::Core Qt6::Gui)
tembra_precompiled_headers(widgets widgets Qt6::Widgets)
if(TEMBRA_COVERAGE)
  tembra_precompiled_headers(core_counted core Qt6::Core Qt6::Gui tembra_counted)
  tembra_precompiled_headers(widgets_counted widgets Qt6::Widgets tembra_counted)
endif()
