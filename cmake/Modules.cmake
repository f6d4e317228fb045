# troth_sources(VAR DIR...): all C++ sources that lie directly in the given folders.
function(troth_sources var)
  set(found)
  foreach(dir IN LISTS ARGN)
    file(GLOB files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${dir}/*.cpp)
    list(APPEND found ${files})
  endforeach()
  set(${var} ${found} PARENT_SCOPE)
endfunction()

# troth_include_root(TARGET MODULE SCOPE): makes "MODULE/Header.h" known to the target. Each module has an include
# root of its own, which holds a link to its folder and nothing else, so that the header of a module that the target
# does not depend on is not found.
function(troth_include_root target module scope)
  set(root ${CMAKE_BINARY_DIR}/include/${module})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${module} ${root}/${module} SYMBOLIC)
  target_include_directories(${target} ${scope} ${root})
endfunction()

# troth_module(NAME [FOLDERS DIR...] [DEPENDS MODULE...]): the static library troth_NAME of the sources in the given
# folders below src/ (src/NAME if none are given). DEPENDS names the modules whose headers it may include. Each variant
# in TROTH_VARIANTS (a suffix, such as _hardened) is built besides, with the flags of troth_flags plus those of
# troth_flags<variant>.
function(troth_module name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FOLDERS;DEPENDS")
  if(NOT arg_FOLDERS)
    set(arg_FOLDERS ${name})
  endif()
  list(GET arg_FOLDERS 0 first_folder)
  string(REGEX REPLACE "/.*" "" root ${first_folder})
  list(TRANSFORM arg_FOLDERS PREPEND src/)
  troth_sources(sources ${arg_FOLDERS})
  foreach(variant IN ITEMS "" ${TROTH_VARIANTS})
    set(target troth_${name}${variant})
    add_library(${target} STATIC ${sources})
    target_link_libraries(${target} PUBLIC troth_flags${variant})
    troth_include_root(${target} ${root} PUBLIC)
    target_include_directories(${target} PRIVATE ${TROTH_GENERATED})
    foreach(dependency IN LISTS arg_DEPENDS)
      target_link_libraries(${target} PUBLIC troth_${dependency}${variant})
    endforeach()
  endforeach()
endfunction()
