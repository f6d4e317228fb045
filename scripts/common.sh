# What all commands share: places, messages to the user, clean-up on every exit, builds. Brings in the other libraries
# of this folder. Sourced, never run.

set -Eeuo pipefail
# No step fails without a message.
trap 'complain "Stopped at ${BASH_SOURCE[0]##*/}, line $LINENO: $BASH_COMMAND"' ERR

readonly ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
readonly BUILD="$ROOT/build"
# Files that a command needs only while it runs; each command has a folder of its own.
WORK=""

say() { printf '%s\n' "$*"; }
complain() { printf '%s\n' "$*" >&2; }
fail() {
  complain "Stopped: $*"
  exit 1
}

seconds_since() { printf '%d s' $((SECONDS - $1)); }

# The version of the project, of which CMakeLists.txt has the only copy.
project_version() { sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' "$ROOT/CMakeLists.txt"; }

# on_exit COMMAND: runs it when the script ends, fails or is interrupted; the last one first.
exit_tasks=()
on_exit() { exit_tasks+=("$1"); }
run_exit_tasks() {
  local code=$? i
  trap - EXIT
  trap '' INT TERM HUP
  for ((i = ${#exit_tasks[@]} - 1; i >= 0; i--)); do
    eval "${exit_tasks[i]}" </dev/null >/dev/null 2>&1 || true
  done
  # ./test prints its totals however it ends.
  if declare -F print_totals >/dev/null; then print_totals "$code"; fi
  exit "$code"
}
trap run_exit_tasks EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
trap 'exit 129' HUP

# Ends a process that this command has started: asks first, then kills. It is a child that has not been waited for, so
# its id cannot belong to another process by now.
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

# wait_until SECONDS COMMAND...: repeats the command until it succeeds (0) or the time is over (1).
wait_until() {
  local deadline=$((SECONDS + $1))
  shift
  until "$@"; do
    ((SECONDS < deadline)) || return 1
    sleep 0.02
  done
}

# begin PACKAGE...: what every command does first. Leaves the build locked.
begin() {
  # The same language and code page everywhere.
  export LC_ALL=C.UTF-8
  create_work_folder
  lock_build
  install_packages "${BUILD_PACKAGES[@]}" "$@"
}

create_work_folder() {
  mkdir -p "$BUILD"
  WORK="$(mktemp -d "$BUILD/work.XXXXXX")"
  on_exit 'rm -rf "$WORK"'
  # Wine, fontconfig and openbox need a home that can be written; a build server may have none.
  if [[ -z "${HOME:-}" || ! -d "$HOME" || ! -w "$HOME" ]]; then
    export HOME="$WORK/home"
    mkdir -p "$HOME"
  fi
}

# One command at a time installs, builds and makes the Wine template.
lock_build() {
  mkdir -p "$BUILD"
  exec {build_lock}>"$BUILD/.lock"
  if flock -n "$build_lock"; then return; fi
  say "Waiting for another command to finish its build ..."
  flock "$build_lock"
}
# Programs that are started later must not inherit the lock.
unlock_build() { exec {build_lock}>&-; }

# configure PRESET: enough for what reads only the compile commands.
configure() {
  if (cd "$ROOT" && cmake --preset "$1") </dev/null >"$BUILD/$1.log" 2>&1; then return 0; fi
  tail -n 30 "$BUILD/$1.log"
  return 1
}

# build PRESET [TARGET...]: configures and builds; shows the compiler's messages only on failure.
build() {
  local preset="$1" start=$SECONDS log
  shift
  log="$BUILD/$preset.log"
  printf 'Building (%s) ... ' "$preset"
  # After an error the independent rest is still built, so that one mistake does not hide another.
  if (cd "$ROOT" && cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"} -- -k 0) \
    </dev/null >"$log" 2>&1; then
    say "done ($(seconds_since "$start"))"
  else
    say "FAILED ($(seconds_since "$start")); from $log:"
    grep -vE '^\[[0-9]+/[0-9]+\] (Building|Linking)' "$log" | tail -n 60
    return 1
  fi
}

for library in install wine display stage release package_checks; do
  source "$ROOT/scripts/$library.sh"
done
unset library
