# The shipped part: the backend of Windows, the program and the stand-in game.
add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN WINVER=0x0A00 _WIN32_WINNT=0x0A00)
add_link_options(-static -Wl,--dynamicbase,--nxcompat,--high-entropy-va)
add_compile_options(-fstack-protector-strong)
link_libraries(ssp)

troth_room(troth_win32 src/platform/win32)
target_link_libraries(troth_win32 PUBLIC troth_core comctl32)

troth_sources(app_sources src/app)
add_executable(Troth WIN32 ${app_sources} src/app/Troth.rc)
target_link_libraries(Troth PRIVATE troth_win32)

troth_sources(game_sources src/game)
add_executable(KestrelMoors WIN32 ${game_sources} src/game/KestrelMoors.rc)
target_link_libraries(KestrelMoors PRIVATE troth_flags)

# A thousand sentences can wait inside each other, 2.5 KB each under Wine: see Hotkeys.cpp.
target_link_options(Troth PRIVATE -Wl,--stack,16777216)

foreach(program Troth KestrelMoors)
  target_link_options(${program} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-s> -municode)
endforeach()
