# A display for those who have none: a virtual screen with a window manager, without which each box of Wine takes
# two seconds. Sourced, never run.

# Does the user have a display that answers?
has_display() { [[ -n "${DISPLAY:-}" ]] && timeout 10 xdotool getdisplaygeometry >/dev/null 2>&1; }

# start_display WIDTHxHEIGHT: sets DISPLAY; the screen ends with the command.
start_display() {
  local number="$WORK/display-number"
  : >"$number"
  # The server picks a free number and writes it down; the ground is white. Without -noreset it starts over when its
  # first visitor leaves, and turns away who comes at that moment.
  Xvfb -displayfd 3 -noreset -screen 0 "$1x24" -nolisten tcp -wr 3>"$number" </dev/null >"$WORK/xvfb.log" 2>&1 &
  put_off "end_process $!"
  wait_until 30 test -s "$number" || fail "the virtual display does not start: $(cat "$WORK/xvfb.log")"
  DISPLAY=":$(tr -d '[:space:]' <"$number")"
  export DISPLAY
  unset XAUTHORITY WAYLAND_DISPLAY

  openbox --sm-disable --config-file /etc/xdg/openbox/rc.xml </dev/null >"$WORK/openbox.log" 2>&1 &
  put_off "end_process $!"
  wait_until 30 has_window_manager || fail "the window manager does not start: $(cat "$WORK/openbox.log")"
}
has_window_manager() { timeout 5 xdotool get_num_desktops >/dev/null 2>&1; }

# picture_of_screen FILE.png: the screen without its empty rim, once it has come to rest.
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

# window_of PROCESS-NAME PID: the X window of a Windows program of ours, if it is shown.
window_of() { timeout 10 xdotool search --all --onlyvisible --pid "$2" --class "$1" 2>/dev/null | head -n 1; }
is_shown() { [[ -n "$(window_of "$1" "$2")" ]]; }
