# troth_sources(VAR DIR...): all C++ sources that lie directly in the given folders.
function(troth_sources var)
  set(found)
  foreach(dir IN LISTS ARGN)
    file(GLOB files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${dir}/*.cpp)
    list(APPEND found ${files})
  endforeach()
  set(${var} ${found} PARENT_SCOPE)
endfunction()

# troth_room(TARGET DIR...): a static library of the sources in the given folders.
function(troth_room target)
  troth_sources(sources ${ARGN})
  add_library(${target} STATIC ${sources})
endfunction()
