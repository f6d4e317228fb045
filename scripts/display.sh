# A virtual display with a window manager, without which each message box of Wine takes two seconds. Sourced, never
# run.

# Does the user have a display that answers?
has_display() { [[ -n "${DISPLAY:-}" ]] && timeout 10 xdotool getdisplaygeometry >/dev/null 2>&1; }

# start_display WIDTHxHEIGHT: sets DISPLAY; the screen ends with the command.
start_display() {
  local number="$WORK/display-number"
  : >"$number"
  # The server picks a free number and reports it; the background is white. Without -noreset it resets when its first
  # client leaves, and refuses a client that comes at that moment.
  Xvfb -displayfd 3 -noreset -screen 0 "$1x24" -nolisten tcp -wr 3>"$number" </dev/null >"$WORK/xvfb.log" 2>&1 &
  on_exit "end_process $!"
  wait_until 30 test -s "$number" || fail "the virtual display does not start: $(cat "$WORK/xvfb.log")"
  DISPLAY=":$(tr -d '[:space:]' <"$number")"
  export DISPLAY
  unset XAUTHORITY WAYLAND_DISPLAY

  openbox --sm-disable --config-file /etc/xdg/openbox/rc.xml </dev/null >"$WORK/openbox.log" 2>&1 &
  on_exit "end_process $!"
  wait_until 30 has_window_manager || fail "the window manager does not start: $(cat "$WORK/openbox.log")"
}
has_window_manager() { timeout 5 xdotool get_num_desktops >/dev/null 2>&1; }

# picture_of_screen FILE.png: the screen without its empty margin, once it no longer changes.
picture_of_screen() {
  local shot="$WORK/screen.ppm" before="" now i
  mkdir -p "$(dirname "$1")"
  for ((i = 0; i < 30; i++)); do
    timeout 60 import -silent -window root "$shot"
    now="$(cksum <"$shot")"
    [[ "$now" != "$before" ]] || break
    before="$now"
    sleep 0.1
  done
  timeout 60 convert "$shot" -trim +repage -bordercolor white -border 12 -strip "$1"
}

# The X window of a program that this command has started, if it is shown: is_shown PROCESS-NAME PID.
is_shown() { [[ -n "$(timeout 10 xdotool search --all --onlyvisible --pid "$2" --class "$1" 2>/dev/null)" ]]; }
