# What ./test checks about the packages, under Wine on a display: installs, uses, updates and removes the program.
# Sourced, never run.

readonly APPS_KEY='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Trothline'

CHECKS_PASSED=0
CHECKS_FAILED=0

# check TEXT COMMAND...: counts whether the command succeeds.
check() {
  local text="$1"
  shift
  if "$@" >"$WORK/check.log" 2>&1; then
    CHECKS_PASSED=$((CHECKS_PASSED + 1))
  else
    CHECKS_FAILED=$((CHECKS_FAILED + 1))
    say "FAILED: $text"
    tail -n 5 "$WORK/check.log"
  fi
}
is_not() { ! "$@"; }

# Without a user who could answer, the installer asks nothing.
run_setup() { timeout 120 wine "$SETUP" /S </dev/null; }
# The uninstaller works from a copy of itself and returns early.
run_uninstaller() {
  timeout 60 wine "$INSTALLED/Uninstall.exe" /S "$@" </dev/null
  wait_until 60 is_removed
}
is_removed() { [[ ! -e "$INSTALLED/Uninstall.exe" ]] && is_not has_key "$APPS_KEY"; }
has_key() { timeout 60 wine reg query "$1" </dev/null >/dev/null 2>&1; }
apps_value() { timeout 60 wine reg query "$APPS_KEY" /v "$1" </dev/null | tr -d '\r' | sed -n "s/^ *$1  *REG_[A-Z]*  *//p"; }
apps_value_is() { [[ "$(apps_value "$1")" == "$2" ]]; }
is_positive() { (($(apps_value "$1") > 0)); }

# same_files FOLDER: everything that the portable archive holds is there, byte for byte.
same_files() {
  local path
  while read -r path; do
    cmp "$CONTENT/$path" "$1/$path" || return 1
  done < <(cd "$CONTENT" && find . -type f)
}
only_files() { [[ "$(cd "$INSTALLED" && find . -type f | sort)" == "$(printf '%s\n' "$@" | sort)" ]]; }

# Libraries that the loader takes from the system whatever lies in the program folder: it knows them, or, as comctl32, they
# are named in the manifest.
readonly KNOWN_LIBRARIES='advapi32|comctl32|gdi32|kernel32|msvcrt|ole32|oleaut32|shell32|user32'
takes_known_libraries() {
  local found
  found="$(x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/.*DLL Name: \(.*\)\.dll.*/\1/Ip')"
  [[ -n "$found" ]] && is_not grep -viE "^($KNOWN_LIBRARIES)\$" <<<"$found"
}

is_reproducible() {
  make_packages "$WORK/again" && cmp "$PACKAGES/SHA256SUMS" "$WORK/again/SHA256SUMS"
}

use_installed() {
  open_game "$INSTALLED" 96 --transcript "$(windows_path "$WORK/transcript.txt")"
  open_troth "$INSTALLED"
  drive await frmTroth
  drive click frmTroth cmdSpeak
  wait_until 20 has_heard 1
}

check_package() {
  local home user_script
  SETUP="$PACKAGES/$(package_name setup).exe"
  make_packages "$PACKAGES"
  CONTENT="$WORK/content/$(package_name portable)"
  check "the same sources give the same packages" is_reproducible
  check "the program takes libraries of the system only" takes_known_libraries "$CONTENT/Troth.exe"
  check "the simulator takes libraries of the system only" takes_known_libraries "$CONTENT/KestrelMoors.exe"
  check "the sums are those of the files" sh -c "cd '$PACKAGES' && sha256sum -c SHA256SUMS"

  home="$(dirname "$(timeout 60 wine winepath -u "$(timeout 60 wine cmd /c 'echo %LOCALAPPDATA%' </dev/null | tr -d '\r')" </dev/null)")"
  INSTALLED="$home/Local/Programs/Trothline"
  MENU="$home/Roaming/Microsoft/Windows/Start Menu/Programs/Trothline"

  check "the installer works silently" run_setup
  check "all files are installed" same_files "$INSTALLED"
  check "the Start menu has the program and the rehearsal" test -f "$MENU/Trothline.lnk" -a -f "$MENU/Rehearse.lnk"
  check "Apps shows the version" apps_value_is DisplayVersion "$(project_version)"
  check "Apps shows the size" is_positive EstimatedSize

  skip_greetings
  set_setting 'Last Script' "$(windows_path "$INSTALLED")\\$SAMPLE_SCRIPT"
  offer_places
  check "the installed program speaks to the rehearsal" use_installed
  check "the installer does not replace a running rehearsal" is_not run_setup
  end_process "$GAME_PID"

  # What a user changes and adds, and a file of an older version.
  user_script="$INSTALLED/wedscripts/My Scripts/Ours.txt"
  printf 'ring=oak\r\n' >"$INSTALLED/Vars.txt"
  mkdir -p "$(dirname "$user_script")"
  printf 'Ours.\r\n' >"$user_script"
  printf 'An old tip.\r\n' | tee "$INSTALLED/TIPOFDAY.TXT" >"$INSTALLED/Uninstall/Originals/TIPOFDAY.TXT"
  check "an update asks the running program to close" run_setup
  check "the program has closed by itself" wait "$TROTH_PID"
  check "an update keeps what the user changed" grep -q oak "$INSTALLED/Vars.txt"
  check "an update keeps what the user added" test -f "$user_script"
  check "an update replaces unchanged files" cmp "$CONTENT/TIPOFDAY.TXT" "$INSTALLED/TIPOFDAY.TXT"

  check "the uninstaller works silently" run_uninstaller
  check "it leaves the user's files and nothing else" only_files ./Vars.txt './wedscripts/My Scripts/Ours.txt'
  check "it leaves the settings" has_key "$SETTINGS_KEY"
  check "it removes the Start menu entries" is_not test -e "$MENU"

  check "the program can be installed again" run_setup
  check "its files are kept" grep -q oak "$INSTALLED/Vars.txt"
  check "the uninstaller removes everything if asked" run_uninstaller /ALL
  check "no file is left" is_not test -e "$INSTALLED"
  check "no setting is left" is_not has_key 'HKCU\Software\Trothline'
  say "$CHECKS_PASSED passed, $CHECKS_FAILED failed"
}
