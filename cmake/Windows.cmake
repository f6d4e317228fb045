# Flags of everything that is built for Windows.
add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN WINVER=0x0A00 _WIN32_WINNT=0x0A00)
# No time of linking in the programs: the same sources give the same bytes.
add_link_options(-static -Wl,--dynamicbase,--nxcompat,--high-entropy-va,--no-insert-timestamp)
add_compile_options(-fstack-protector-strong)
link_libraries(ssp)

# The portable modules are built a second time for the tests, hardened: a 16-bit wchar_t finds faults that the native
# build cannot show. The sanitizers' own libraries do not exist here, so a fault traps.
set(TROTH_VARIANTS _hardened)
add_library(troth_flags_hardened INTERFACE)
target_link_libraries(troth_flags_hardened INTERFACE troth_flags)
target_compile_options(troth_flags_hardened INTERFACE -fsanitize=undefined -fsanitize-undefined-trap-on-error)
target_compile_definitions(troth_flags_hardened INTERFACE _GLIBCXX_ASSERTIONS)

# troth_executable(TARGET MODULE): a program of the sources and the resources of one module, without a console.
function(troth_executable target module)
  troth_sources(sources src/${module})
  add_executable(${target} WIN32 ${sources} ${CMAKE_SOURCE_DIR}/src/${module}/${target}.rc)
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  target_link_libraries(${target} PRIVATE troth_flags)
  troth_include_root(${target} ${module} PRIVATE)
  # The version record and the manifest.
  target_include_directories(${target} PRIVATE ${TROTH_GENERATED})
  target_link_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-s> -municode)
endfunction()
