# Shared by run, test and scripts/screenshot: where things lie, how to speak to the user, and the tidying up that
# happens on every way out. Sourced, never run.

set -Eeuo pipefail
# No step fails without a word.
trap 'complain "Stopped at ${BASH_SOURCE[0]##*/}, line $LINENO: $BASH_COMMAND"' ERR

readonly ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
readonly BUILD="$ROOT/build"
# What a command needs only while it runs lies here, in a folder of its own for each command.
WORK=""

say() { printf '%s\n' "$*"; }
complain() { printf '%s\n' "$*" >&2; }
fail() {
  complain "Stopped: $*"
  exit 1
}

seconds_since() { printf '%d s' $((SECONDS - $1)); }

# Tidying up: what was put off last is done first, whether the command ends well, fails or is interrupted.
put_off_tasks=()
put_off() { put_off_tasks+=("$1"); }
tidy_up() {
  local code=$? i
  trap - EXIT
  trap '' INT TERM HUP
  for ((i = ${#put_off_tasks[@]} - 1; i >= 0; i--)); do
    eval "${put_off_tasks[i]}" </dev/null >/dev/null 2>&1 || true
  done
  # A command may have something to say at the very end.
  ! declare -F last_words >/dev/null || last_words "$code"
  exit "$code"
}
trap tidy_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
trap 'exit 129' HUP

# Ends one process that this command has started, politely at first. Its id is that of a child not yet waited for,
# so it cannot have passed to somebody else.
end_process() {
  local pid="$1" i
  kill -TERM "$pid" 2>/dev/null || return 0
  for ((i = 0; i < 40; i++)); do
    kill -0 "$pid" 2>/dev/null || break
    sleep 0.05
  done
  kill -KILL "$pid" 2>/dev/null || true
  wait "$pid" 2>/dev/null || true
}

# wait_until SECONDS COMMAND...: asks again and again, until it holds (0) or the time is over (1).
wait_until() {
  local deadline=$((SECONDS + $1))
  shift
  until "$@"; do
    ((SECONDS < deadline)) || return 1
    sleep 0.02
  done
}

open_work_folder() {
  mkdir -p "$BUILD"
  WORK="$(mktemp -d "$BUILD/work.XXXXXX")"
  put_off 'rm -rf "$WORK"'
  # Wine, fontconfig and openbox want a home that can be written; a build server has none at times.
  if [[ -z "${HOME:-}" || ! -d "$HOME" || ! -w "$HOME" ]]; then
    export HOME="$WORK/home"
    mkdir -p "$HOME"
  fi
}

# configure PRESET: what reads the compile commands needs no more.
configure() {
  (cd "$ROOT" && cmake --preset "$1") </dev/null >"$BUILD/$1.log" 2>&1 && return 0
  tail -n 30 "$BUILD/$1.log"
  return 1
}

# build PRESET [TARGET...]: configures and builds; shows the compiler's words only if they are needed.
build() {
  local preset="$1" start=$SECONDS log
  shift
  log="$BUILD/$preset.log"
  printf 'Building (%s) ... ' "$preset"
  # On an error it goes on with what does not depend on the faulty file, so that one mistake does not hide another.
  if (cd "$ROOT" && cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"} -- -k 0) \
    </dev/null >"$log" 2>&1; then
    say "done ($(seconds_since "$start"))"
  else
    say "FAILED ($(seconds_since "$start")); from $log:"
    grep -vE '^\[[0-9]+/[0-9]+\] (Building|Linking)' "$log" | tail -n 60
    return 1
  fi
}

# One command at a time installs, builds and makes the Wine template; others wait their turn.
take_turn() {
  mkdir -p "$BUILD"
  exec {turn}>"$BUILD/.turn"
  flock -n "$turn" || { say "Waiting for another ./run or ./test to finish its building ..." && flock "$turn"; }
}
# The lock must not be inherited by programs that outlive the step, so it is given up as soon as it can be.
end_turn() { exec {turn}>&-; }
