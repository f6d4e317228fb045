# Installs the Debian packages that a command needs. Sourced, never run.

readonly BUILD_PACKAGES=(cmake ninja-build)
readonly NATIVE_PACKAGES=(g++ libgtest-dev)
readonly LINT_PACKAGES=(clang-format clang-tidy python3)
# googletest: sources, from which it is built for Windows.
readonly WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix googletest)
# libclang-rt-dev: the sanitizers and libFuzzer, which clang only recommends.
readonly FUZZ_PACKAGES=(clang libclang-rt-dev)
# The libraries are loaded by Wine as it finds them; without them text is drawn without smoothing, the mouse
# pointer is plain and the screen's size goes unnoticed.
readonly WINE_PACKAGES=(wine wine64 fonts-liberation fonts-dejavu-core libxrender1 libxcursor1 libxi6 libxrandr2
  libxcomposite1 libxfixes3 libxinerama1 xdotool)
readonly SCREEN_PACKAGES=(xvfb openbox)
readonly PICTURE_PACKAGES=(imagemagick)
readonly RELEASE_PACKAGES=(nsis zip)

is_installed() { [[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" == installed* ]]; }

# install_packages PACKAGE...: installs those that are missing.
install_packages() {
  local package missing=() as_root=()
  command -v dpkg-query >/dev/null || fail "only Debian and its derivatives are supported; install these yourself: $*"
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  ((${#missing[@]})) || return 0

  if ((EUID != 0)); then
    command -v sudo >/dev/null || fail "these packages are missing, and only root can install them: ${missing[*]}"
    as_root=(sudo)
  fi
  say "Installing: ${missing[*]}"
  # The recommended packages would bring the 32-bit half of Wine, which is not needed.
  if ! {
    "${as_root[@]}" apt-get -q -o DPkg::Lock::Timeout=300 update &&
      "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 \
        install --no-install-recommends "${missing[@]}"
  } </dev/null >"$BUILD/install.log" 2>&1; then
    tail -n 20 "$BUILD/install.log" >&2
    fail "the packages cannot be installed; see $BUILD/install.log"
  fi
}
