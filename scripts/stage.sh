# The program and the game simulator side by side: opens them, works the program by the names of its windows and
# controls, and reads what the game received. Sourced, never run.

TROTH_PID=""
GAME_PID=""
# Where a virtual run has the program: on the drive C of its prefix, so that no picture shows a path of this machine.
VIRTUAL_PROGRAM=""

# Targets that a virtual run needs.
readonly STAGE_TARGETS=(Troth KestrelMoors drive)

# drive COMMAND FORM [CONTROL or ITEM [TEXT]]: see tests/desktop/drive/Drive.cpp.
drive() { timeout 60 wine "$BUILD/windows/tests/drive.exe" "$@" </dev/null | tr -d '\r'; }

# choose_script FOLDER FILE: the script to start with; without a file the sample ceremony of the program folder.
choose_script() {
  if [[ -n "$2" ]]; then
    set_setting 'Last Script' "$(windows_path "$2")"
  else
    offer_sample "$1"
  fi
}

# prepare_virtual DPI FILE: both programs on a virtual display, in a prefix of their own, with the couple named.
prepare_virtual() {
  local dpi="$1"
  use_private_prefix
  VIRTUAL_PROGRAM="$WINEPREFIX/drive_c/Trothline"
  stage_program "$VIRTUAL_PROGRAM"
  unlock_build
  start_display "$((1600 * dpi / 96))x$((800 * dpi / 96))"
  if ((dpi != 96)); then set_dpi "$dpi"; fi
  choose_script "$VIRTUAL_PROGRAM" "$2"
  offer_places
  skip_greetings
  set_setting 'X Position' 400
  set_setting 'Y Position' 800
  open_game "$VIRTUAL_PROGRAM" "$dpi" --transcript "$(windows_path "$WORK/transcript.txt")"
  open_troth "$VIRTUAL_PROGRAM"
  drive await frmTroth || fail "the main window does not show: $(cat "$WORK/troth.log")"
  name_couple Bram Anna
}

# open_game FOLDER DPI [OPTION...]: the game, to the right of Trothline, as large as the screen permits.
open_game() {
  local folder="$1" width=$((8400 * $2 / 1440)) screen_width screen_height gap room tall
  shift 2
  gap=$((width / 20))
  read -r screen_width screen_height < <(timeout 10 xdotool getdisplaygeometry)
  # Its usual size where that fits, what is left otherwise, but never too small to be read.
  room=$((screen_width - width - 3 * gap))
  tall=$((width * 640 / 544))
  if ((tall > screen_height - 3 * gap)); then tall=$((screen_height - 3 * gap)); fi
  if ((room > width * 960 / 544)); then room=$((width * 960 / 544)); fi
  if ((room < width * 2 / 3)); then room=$((width * 2 / 3)); fi
  (cd "$folder" && exec wine KestrelMoors.exe --position "$((width + 2 * gap)),$gap" --size "${room}x$tall" "$@") \
    </dev/null >"$WORK/game.log" 2>&1 &
  GAME_PID=$!
  on_exit "end_process $GAME_PID"
  wait_until 60 is_shown kestrelmoors.exe "$GAME_PID" || fail "the game does not show: $(cat "$WORK/game.log")"
}

# open_troth FOLDER: returns when its first window is shown, which may be the tip of the day.
open_troth() {
  (cd "$1" && exec wine Troth.exe) </dev/null >"$WORK/troth.log" 2>&1 &
  TROTH_PID=$!
  on_exit "end_process $TROTH_PID"
  wait_until 60 is_shown troth.exe "$TROTH_PID" || fail "no window shows: $(cat "$WORK/troth.log")"
}

# By the keyboard: two quick clicks on the button are a double click, which counts once.
press_speak() { drive press frmTroth Return; }

# name_couple GROOM BRIDE: the names apply when the box of the bride loses the keyboard.
name_couple() {
  drive type frmTroth txtGroom "$1"
  drive type frmTroth txtBride "$2"
  drive click frmTroth txtNext
}

# The lines that the game received, from its transcript: a character code and a parameter for each character. 13 ends
# a line; an empty line is the Enter before a sentence. An incomplete line is left out.
heard() {
  LC_ALL=C awk '$1 == 13 { if (line != "") print line; line = ""; next }
                $1 == 8 { line = substr(line, 1, length(line) - 1); next }
                { line = line sprintf("%c", $1 + 0) }' "$WORK/transcript.txt" | iconv -f CP1252 -t UTF-8//TRANSLIT
}
has_heard() { [[ -f "$WORK/transcript.txt" ]] && (($(heard | wc -l) >= $1)); }

# speak_sentences COUNT: presses Speak for each and waits until the game has received it.
speak_sentences() {
  local i
  for ((i = 1; i <= $1; i++)); do
    press_speak
    if wait_until 20 has_heard "$i"; then continue; fi
    picture_of_screen "$BUILD/pictures/failed.png" || true
    fail "sentence $i of $1 did not reach the game ($BUILD/pictures/failed.png); it received: $(heard)"
  done
}

# write_rows COUNT: opens the book of the game and writes the first rows of the script into it.
write_rows() {
  local said i
  timeout 10 xdotool windowactivate --sync "$(timeout 10 xdotool search --onlyvisible --name '^Kestrel Moors' | tail -n 1)" key F2
  drive choose frmTroth MViewKMBook
  drive click frmKMBook cmdCurrent
  drive click frmKMBook lstBook
  drive press frmKMBook Home
  said="$(heard | wc -l)"
  for ((i = 1; i <= $1; i++)); do
    drive click frmKMBook cmdRow
    wait_until 30 has_heard $((said + i)) || fail "row $i does not reach the book; the game received: $(heard)"
  done
}

# expect_couple GROOM BRIDE: their boxes show the names, and no sentence has a gap or a mark in the place of a name.
expect_couple() {
  [[ "$(drive text frmTroth txtGroom)" == "$1" ]] || fail "the groom's box does not show $1"
  [[ "$(drive text frmTroth txtBride)" == "$2" ]] || fail "the bride's box does not show $2"
  if heard | grep -E '#|[^ ]  [^ ]'; then fail "a name is missing in a sentence"; fi
}

# picture_of_form FORM FILE.png: the window with its frame and without a tool tip, once it no longer changes.
picture_of_form() {
  local id
  timeout 10 xdotool mousemove 0 0
  id="$(drive id "$1")" || fail "there is no window $1"
  picture_of_screen "$WORK/whole.png"
  import -silent -frame -window "$id" -strip "$2"
}
