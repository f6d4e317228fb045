# Wine prefixes (a private "Windows" in a folder) and the programs in them. Sourced, never run.
# Functions work on the prefix in WINEPREFIX; use_prefix sets it.

# No offers to download Mono and Gecko, no entries in the user's menus, no debug output.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEARCH=win64
unset WINESERVER WINELOADER

readonly TEMPLATE="$BUILD/wine-template"

windows_path() { printf 'Z:%s' "${1//\//\\}"; }

# Creating a prefix takes some ten seconds, so it is created once and copied; again when Wine itself changes.
make_template() {
  local made
  made="1 $(wine --version)"
  if [[ "$(cat "$TEMPLATE/.made-by" 2>/dev/null)" == "$made" ]]; then return 0; fi
  say "Preparing Wine ..."
  rm -rf "$TEMPLATE"
  (
    export WINEPREFIX="$TEMPLATE"
    unset DISPLAY
    {
      timeout 300 wineboot -i &&
        # A crash ends the program; it does not ask.
        timeout 60 wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
      code=$?
      end_wine
      exit "$code"
    } </dev/null >"$BUILD/wine.log" 2>&1
  ) || fail "Wine cannot create its prefix; see $BUILD/wine.log"
  printf '%s' "$made" >"$TEMPLATE/.made-by"
}

# use_prefix DIR: copies the template if the prefix is missing. Wine's own files (700 MB) are shared by hard links; the
# registry and the user's folders are copies, since they are written in place.
use_prefix() {
  export WINEPREFIX="$1"
  if [[ "$(cat "$1/.made-by" 2>/dev/null)" == "$(cat "$TEMPLATE/.made-by")" ]]; then return 0; fi
  local new="$1.new.$$"
  rm -rf "$new"
  mkdir -p "$new/drive_c"
  cp -al "$TEMPLATE/drive_c/windows" "$new/drive_c/" 2>/dev/null ||
    cp -a "$TEMPLATE/drive_c/windows" "$new/drive_c/"
  find "$TEMPLATE/drive_c" -mindepth 1 -maxdepth 1 ! -name windows -exec cp -a -t "$new/drive_c" {} +
  find "$TEMPLATE" -mindepth 1 -maxdepth 1 ! -name drive_c -exec cp -a -t "$new" {} +
  # The user's settings are kept.
  if [[ -f "$1/user.reg" ]]; then cp -a "$1/user.reg" "$new/user.reg"; fi
  rm -rf "$1"
  mv "$new" "$1"
}

# Ends all programs of the prefix and waits for the last of them.
end_wine() {
  timeout 20 wineserver -k || true
  timeout 20 wineserver -w || true
}

# A prefix for this command alone.
use_private_prefix() {
  use_prefix "$WORK/wine"
  on_exit end_wine
}

set_dpi() {
  timeout 60 wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f </dev/null >/dev/null
  # Read by the first program of a session only.
  end_wine
}

readonly SETTINGS_KEY='HKCU\Software\Trothline\Troth\Options'
readonly SAMPLE_SCRIPT='wedscripts\Moorland Handfasting.txt'

# setting NAME: prints its value; nothing if it is not stored.
setting() {
  { timeout 60 wine reg query "$SETTINGS_KEY" /v "$1" </dev/null 2>/dev/null || true; } |
    tr -d '\r' | sed -n "s/^ *$1  *REG_SZ  *//p"
}

set_setting() { timeout 60 wine reg add "$SETTINGS_KEY" /v "$1" /t REG_SZ /d "$2" /f </dev/null >/dev/null; }

# Neither the tip of the day nor the release notes at the next start.
skip_greetings() {
  set_setting 'Show Tips at Startup' 0
  set_setting 'Last Installed Version' "$(project_version)"
}

# offer_sample FOLDER: makes the sample ceremony of the program folder the script to start with, unless the user has
# chosen one that still exists.
offer_sample() {
  local chosen
  chosen="$(setting 'Last Script')"
  if [[ -n "$chosen" && -f "$(timeout 60 wine winepath -u "$chosen" </dev/null | tr -d '\r')" ]]; then return 0; fi
  set_setting 'Last Script' "$(windows_path "$1")\\$SAMPLE_SCRIPT"
}

# Places the paragraph index below the main window, unless it has a place: by default it would cover it.
offer_places() {
  if [[ -n "$(setting 'Index Y Position')" ]]; then return 0; fi
  set_setting 'Index X Position' 405
  set_setting 'Index Y Position' 5000
}

# stage_program FOLDER: the program folder as it is shipped. Each file is replaced, not overwritten, since a running
# program keeps its file open. Files that the user has changed or added since stay.
stage_program() {
  local exe
  mkdir -p "$1"
  cp -a --update --remove-destination "$ROOT/program/." "$1/"
  for exe in Troth.exe KestrelMoors.exe; do
    cp -a --update --remove-destination "$BUILD/windows/$exe" "$1/"
  done
}

# The program folder and the scratch folder of the desktop tests.
stage_tested_program() {
  stage_program "$WORK/trothline"
  mkdir -p "$WORK/temp"
  TROTH_PROGRAM="$(windows_path "$WORK/trothline")"
  TROTH_TEMP="$(windows_path "$WORK/temp")"
  export TROTH_PROGRAM TROTH_TEMP
}
