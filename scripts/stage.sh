# The program and the stand-in game on one stage: opening them side by side, pressing Speak, hearing what came.
# Sourced, never run.

TROTH_PID=""
# Its main window. Asked for once, for a tooltip is a window too.
TROTH_WINDOW=""

# Trothline's main window in its own measure (twips): the size of its inside below the menu, and the middles of the
# boxes for groom and bride and of Speak.
readonly TROTH_WIDTH=8395 TROTH_HEIGHT=3240 NAMES_X=1507 GROOM_Y=502 BRIDE_Y=1102 SPEAK_X=487 SPEAK_Y=2767

# geometry WINDOW: sets X, Y, WIDTH and HEIGHT of its inside, and SCREEN.
geometry() { eval "$(timeout 10 xdotool getwindowgeometry --shell "$1" | grep -E '^(X|Y|WIDTH|HEIGHT|SCREEN)=[0-9-]+$')"; }

# choose_script FOLDER FILE: the script to start with; without a file the sample ceremony of the program folder.
choose_script() {
  if [[ -n "$2" ]]; then
    set_setting 'Last Script' "$(windows_path "$2")"
  else
    offer_sample "$1"
  fi
}

# prepare_virtual DPI FILE: both programs on a virtual screen, in a prefix of their own, with the couple named.
prepare_virtual() {
  local dpi="$1"
  export LC_ALL=C.UTF-8
  stage_program "$WORK/trothline"
  use_private_prefix
  end_turn
  start_display "$((1600 * dpi / 96))x$((800 * dpi / 96))"
  ((dpi == 96)) || set_dpi "$dpi"
  choose_script "$WORK/trothline" "$2"
  offer_places
  skip_greetings
  open_game "$WORK/trothline" "$dpi" --transcript "$(windows_path "$WORK/transcript.txt")"
  open_main "$WORK/trothline"
  name_couple "Bram" "Anna"
}

# open_game FOLDER DPI [OPTION...]: the game, to the right of where Trothline comes up, as far as the screen has room.
open_game() {
  local folder="$1" width=$((TROTH_WIDTH * $2 / 1440)) screen_width screen_height gap room tall
  shift 2
  gap=$((width / 20))
  read -r screen_width screen_height < <(timeout 10 xdotool getdisplaygeometry)
  # It takes its usual size where that fits and what is left otherwise, but never less than one can read.
  room=$((screen_width - width - 3 * gap))
  tall=$((width * 640 / 544))
  ((tall <= screen_height - 3 * gap)) || tall=$((screen_height - 3 * gap))
  ((room <= width * 960 / 544)) || room=$((width * 960 / 544))
  ((room >= width * 2 / 3)) || room=$((width * 2 / 3))
  (cd "$folder" && exec wine KestrelMoors.exe --position "$((width + 2 * gap)),$gap" --size "${room}x$tall" "$@") \
    </dev/null >"$WORK/game.log" 2>&1 &
  put_off "end_process $!"
  wait_until 60 is_shown kestrelmoors.exe "$!" || fail "the game does not show: $(cat "$WORK/game.log")"
}

# open_troth FOLDER: its first window, which may be the tip of the day.
open_troth() {
  (cd "$1" && exec wine Troth.exe) </dev/null >"$WORK/troth.log" 2>&1 &
  TROTH_PID=$!
  put_off "end_process $TROTH_PID"
  wait_until 60 is_shown troth.exe "$TROTH_PID" || fail "no window shows: $(cat "$WORK/troth.log")"
}

# open_main FOLDER: its main window, set a little off the edges of the screen. The greetings must be skipped.
open_main() {
  local X Y WIDTH HEIGHT SCREEN
  open_troth "$1"
  # The list of paragraphs may come up first.
  wait_until 60 has_main_window || fail "the main window does not show: $(cat "$WORK/troth.log")"
  geometry "$TROTH_WINDOW"
  timeout 10 xdotool windowmove --sync "$TROTH_WINDOW" $((WIDTH / 20)) $((WIDTH / 10)) || true
}

has_main_window() {
  TROTH_WINDOW="$(timeout 10 xdotool search --all --onlyvisible --pid "$TROTH_PID" --name '^Trothline$' 2>/dev/null |
    head -n 1)"
  [[ -n "$TROTH_WINDOW" ]]
}

# click_at X Y: a real click on the real window.
click_at() {
  local at_x="$1" at_y="$2" X Y WIDTH HEIGHT SCREEN
  geometry "$TROTH_WINDOW" || fail "the main window is gone"
  timeout 10 xdotool mousemove --window "$TROTH_WINDOW" $((WIDTH * at_x / TROTH_WIDTH)) \
    $((HEIGHT - WIDTH * (TROTH_HEIGHT - at_y) / TROTH_WIDTH)) click 1
}
press_speak() { click_at "$SPEAK_X" "$SPEAK_Y"; }

# name_couple GROOM BRIDE: as the officiant does before the guests arrive.
name_couple() {
  click_at "$NAMES_X" "$GROOM_Y"
  timeout 20 xdotool type --delay 30 "$1"
  click_at "$NAMES_X" "$BRIDE_Y"
  timeout 20 xdotool type --delay 30 "$2"
}

# The lines that the game heard, from its transcript: a character code and a parameter for each character; 13 ends
# a line, an empty line is the Enter that comes ahead of a sentence. Only whole lines count.
heard() {
  LC_ALL=C awk '$1 == 13 { if (line != "") print line; line = ""; next }
                $1 == 8 { line = substr(line, 1, length(line) - 1); next }
                { line = line sprintf("%c", $1 + 0) }' "$WORK/transcript.txt" | iconv -f CP1252 -t UTF-8//TRANSLIT
}
has_heard() { [[ -f "$WORK/transcript.txt" ]] && (($(heard | wc -l) >= $1)); }

# speak_sentences COUNT: presses Speak once for each and waits until the game has heard it.
speak_sentences() {
  local i
  for ((i = 1; i <= $1; i++)); do
    press_speak
    wait_until 20 has_heard "$i" && continue
    picture_of_screen "$BUILD/pictures/failed.png" || true
    fail "sentence $i of $1 did not reach the game ($BUILD/pictures/failed.png); it heard: $(heard)"
  done
}

# choose_entry MENU KEY...: opens a menu by its letter and presses keys in it. Alt in one burst would stay down.
choose_entry() {
  timeout 10 xdotool windowactivate --sync "$TROTH_WINDOW" keydown alt sleep 0.1 key "$1" sleep 0.1 keyup alt sleep 0.5
  timeout 10 xdotool key --delay 150 "${@:2}"
}

# picture_of_window TITLE FILE.png: the window with its frame, once it is there and at rest.
picture_of_window() {
  wait_until 20 window_titled "$1" >/dev/null || fail "there is no window \"$1\""
  picture_of_screen "$WORK/whole.png"
  import -silent -frame -window "$(window_titled "$1")" -strip "$2"
}
window_titled() { timeout 10 xdotool search --onlyvisible --name "^$1" 2>/dev/null | tail -n 1 | grep .; }

# press_in WINDOW KEY: Alt and a letter. In one burst Alt would stay down.
press_in() {
  timeout 10 xdotool windowactivate --sync "$1" keydown alt sleep 0.1 key "$2" sleep 0.1 keyup alt sleep 0.2
}

# write_rows COUNT: opens the book of the game and writes the first rows of the script into it.
write_rows() {
  local book said i
  timeout 10 xdotool windowactivate --sync "$(window_titled 'Kestrel Moors')" key F2
  choose_entry v k
  wait_until 20 window_titled KMBook >/dev/null || fail "the book writer does not show"
  book="$(window_titled KMBook)"
  press_in "$book" l
  timeout 10 xdotool mousemove --window "$book" 200 18 click 1
  said="$(heard | wc -l)"
  for ((i = 1; i <= $1; i++)); do
    press_in "$book" r
    wait_until 30 has_heard $((said + i)) || fail "row $i does not reach the book; the game received: $(heard)"
  done
}
