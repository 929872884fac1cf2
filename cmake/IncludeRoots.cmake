# Include roots. Each library compiles against a folder of its own in the
# build tree holding only its own sources, as symbolic links made here
# (build/include/grids/grids -> src/grids), and passes that folder on to
# whatever links it. So a library sees exactly the libraries it links: the
# shell sees itself, a page module itself and the shell, the platform itself,
# the shell and Qt. `#include "platform/paper.h"` or <QString> in the shell
# or a page has nothing to find. The #include lines keep their module
# prefix ("shell/form.h") everywhere.
function(gridpages_include_root target)
  string(REPLACE "gridpages_" "" name ${target})
  set(root ${CMAKE_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${root})
  foreach(entry ${ARGN})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${entry} ${root}/${entry} SYMBOLIC)
  endforeach()
  target_include_directories(${target} PUBLIC ${root})
endfunction()
