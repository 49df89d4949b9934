# SPDX-License-Identifier: MIT
# Sourced after setup.sh by what goes through many steps: says where it is, has some run beside the
# others, and ends with a table of what took how long.

STEPS=build/steps
rm -rf "$STEPS"
mkdir -p "$STEPS"
step_name=
failed=
declare -A beside=()  # what runs beside: its process for each name

# Of this shell and of all that it has waited for, in hundredths of a second.
read_processor_time() {
  local stat
  read -ra stat <"/proc/$BASHPID/stat"
  processor_time=$((stat[13] + stat[14] + stat[15] + stat[16]))
}

begin_clock() {
  step_began=$EPOCHSECONDS
  read_processor_time
  step_processor_began=$processor_time
}

end_step() {
  [[ -n $step_name ]] || return 0
  read_processor_time
  printf '%-46s %7d %11d\n' "$step_name" $((EPOCHSECONDS - step_began)) \
    $(((processor_time - step_processor_began) / 100)) >>"$STEPS/table"
  step_name=
}

# step NAME: the one before is over. So is everything if one of those beside has failed.
step() {
  local name
  end_step
  for name in "${!beside[@]}"; do
    runs_beside "$name" || await "$name"
  done
  printf '\n=== %s (%d s)\n' "$1" "$SECONDS"
  step_name=$1
  begin_clock
}

# start_beside NAME COMMAND...: what it prints is shown when it is over. Its steps are its own.
start_beside() {
  local name=$1
  shift
  end_step
  set -m  # a process group of its own, which can be ended as a whole
  (
    set +m
    trap - EXIT
    beside=()
    "$@"
    end_step
  ) >"$STEPS/$name.log" 2>&1 </dev/null &
  beside[$name]=$!
  set +m
}

runs_beside() { jobs -rp | grep -qx "${beside[$1]}"; }

# await NAME: nothing, if it was over before.
await() {
  local name=$1 status=0
  [[ -v beside[$name] ]] || return 0
  wait "${beside[$name]}" || status=$?
  unset "beside[$name]"
  begin_clock  # what has just ended has counted its own
  printf '\n=== Beside: %s\n' "$name"
  cat "$STEPS/$name.log"
  [[ $status -eq 0 ]] || { failed=$name; exit "$status"; }
}

# Whatever happens, nothing goes on beside, and all that was printed is shown.
finish() {
  local status=$? name
  trap - EXIT
  failed=${failed:-$step_name}
  end_step
  for name in "${!beside[@]}"; do
    kill -- "-${beside[$name]}" 2>/dev/null || true
    wait "${beside[$name]}" 2>/dev/null || true
    printf '\n=== Beside, and ended early: %s\n' "$name"
    cat "$STEPS/$name.log"
  done
  printf '\n%-46s %7s %11s\n' step seconds 'processor s'
  cat "$STEPS/table" 2>/dev/null || true
  printf '%-46s %7d\n' 'from beginning to end' "$SECONDS"
  [[ $status -eq 0 ]] || printf '\nFailed: %s\n' "${failed:-before the first step}" >&2
  exit "$status"
}
trap finish EXIT
