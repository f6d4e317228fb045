// How a fuzzer reports a broken rule: it says which one and crashes, so that the input is kept.
#pragma once

#include <cstdio>
#include <cstdlib>

inline void Require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", rule);
  std::abort();
}
