# Flags of our own code; sources of others (GoogleTest) do not get them.
add_library(troth_flags INTERFACE)
target_compile_options(troth_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlapping copies and overruns inside std::string's own inlined code (false alarms of
  # -Wrestrict and -Warray-bounds, fixed in GCC 13), and warns of members that are left to their default
  # in designated initialisers, which is what our option structs are for.
  target_compile_options(troth_flags INTERFACE -Wno-restrict -Wno-array-bounds -Wno-missing-field-initializers)
else()
  target_compile_options(troth_flags INTERFACE -Wno-missing-field-initializers)
endif()
if(TROTH_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
                      -D_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=address,undefined)
endif()
