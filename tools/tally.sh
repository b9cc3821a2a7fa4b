# Runs tests and counts them; sourced by ./test.
passed=0 failed=0 skipped=0

count_failure() {
  failed=$((failed + 1))
  say "  FAILED: $*"
}

# Takes the counts from the closing line of a doctest program; a program without one has crashed.
count_program() {
  local name=$1 log=$2 counts
  counts=$(sed -nE 's/.*test cases: *([0-9]+) \| *([0-9]+) passed \| *([0-9]+) failed \| *([0-9]+) skipped.*/\2 \3 \4/p' "$log" | tail -n 1)
  if [ -z "$counts" ]; then
    tail -n 30 "$log" >&2
    count_failure "$name ended without a result"
    return
  fi
  set -- $counts
  passed=$((passed + $1)) failed=$((failed + $2)) skipped=$((skipped + $3))
  say "  $name: $1 passed, $2 failed"
  [ "$2" -eq 0 ] || grep -vE '^\s*$' "$log" | tail -n 60 >&2
}

library_tests=(stmdata_tests stmdata_inside_tests)
all_tests=("${library_tests[@]}" stmon_tests)

# programs PRESET TEST...: test programs of a Linux build.
programs() {
  local preset=$1 program log
  shift
  log=$(mktemp)
  for program in "$@"; do
    "build/$preset/$program" >"$log" 2>&1
    count_program "$preset $program" "$log"
  done
  rm -f "$log"
}

# arm64_programs: the test programs under the emulator, and what the library makes of many inputs, which
# must be the same as natively.
arm64_programs() {
  local program log
  local emulator=(qemu-aarch64 -L /usr/aarch64-linux-gnu)
  log=$(mktemp)
  for program in "${all_tests[@]}"; do
    "${emulator[@]}" "build/arm64/$program" >"$log" 2>&1
    count_program "arm64 $program" "$log"
  done
  rm -f "$log"
  build native stmdata_dump
  if cmp <(LC_ALL=C "${emulator[@]}" -E LC_ALL=C build/arm64/stmdata_dump fuzz/corpus) \
    <(LC_ALL=C build/native/stmdata_dump fuzz/corpus) >&2; then
    passed=$((passed + 1))
    say "  arm64 and native make the same of every input"
  else
    count_failure "arm64 makes something else of an input"
  fi
}

# windows_programs PRESET WIDTH LOCALE TEST...: test programs of a Windows build for a user of that
# locale, in one visit to the Wine of that width, on a virtual display.
windows_programs() {
  local preset=$1 width=$2 locale=$3 program reason
  shift 3
  if ! reason=$(tools/wine.sh available "$width" 2>&1); then
    [ "${CI:-}" != true ] || { count_failure "no Wine, and CI skips nothing: $reason"; return; }
    skipped=$((skipped + $#))
    say "  skipped: the Windows programs, because $reason; run ./test as root to have them"
    return
  fi
  rm -f "build/$preset"/*.log
  tools/wine.sh run "$width" xvfb-run -a -s "-screen 0 1280x1024x24" sh -c '
    export LC_ALL="$1"
    shift
    cd "$0" && for program; do
      wine "$program.exe" >"$program.log" 2>&1
    done' "build/$preset" "$locale" "$@" || count_failure "the Wine of $width bits"
  for program in "$@"; do
    count_program "$preset $program" "build/$preset/$program.log"
  done
}

# valgrind_checks: the test programs of the native build under Memcheck, which finds unset memory, wrong
# accesses and leaks, and the tests with threads under Helgrind, which finds data races. One test each.
# Both need the debug symbols of the C library.
valgrind_checks() {
  local program
  need_packages valgrind libc6-dbg || { count_failure "no Valgrind"; return; }
  for program in "${all_tests[@]}"; do
    valgrind_check memcheck "$program" --leak-check=full
  done
  for program in "${library_tests[@]}"; do
    valgrind_check helgrind "$program" -- --source-file='*threads_test.cpp'
  done
}

# valgrind_check TOOL PROGRAM [OPTION...] [-- ARGUMENT...]
valgrind_check() {
  local tool=$1 program=$2 options=() log
  shift 2
  while [ $# -gt 0 ] && [ "$1" != -- ]; do
    options+=("$1")
    shift
  done
  shift
  log=$(mktemp)
  if valgrind --tool="$tool" --error-exitcode=9 "${options[@]}" "build/native/$program" "$@" >"$log" 2>&1 &&
    grep -q 'ERROR SUMMARY: 0 errors .*' "$log"; then
    passed=$((passed + 1))
    say "  $tool $program: $(sed -nE 's/.*test cases: *([0-9]+).*/\1/p' "$log") test cases, clean"
  else
    tail -n 60 "$log" >&2
    count_failure "$program under $tool"
  fi
  rm -f "$log"
}

# coverage: what the library's tests reach of src/, from counts of this run alone.
coverage() {
  local report=build/coverage/report.json
  find build/coverage -name '*.gcda' -delete
  programs coverage "${library_tests[@]}"
  quietly "reading the counts" gcovr --root . --filter src/ --exclude-throw-branches \
    --exclude-unreachable-branches --json "$report" build/coverage/CMakeFiles/stmdata_objects.dir &&
    tools/coverage.py "$report" && passed=$((passed + 1)) || count_failure "coverage"
}

# fuzz_targets SECONDS: each target over its corpus, then onwards for so long. One test a target.
fuzz_targets() {
  local target name log seeds scratch
  log=$(mktemp)
  for target in build/fuzz/fuzz_*; do
    [ -x "$target" ] && [ -f "$target" ] || continue
    name=$(basename "$target")
    seeds=fuzz/corpus/${name#fuzz_}
    scratch=$(mktemp -d)
    mkdir -p build/fuzz/findings
    if "$target" -runs=0 "$seeds" >"$log" 2>&1 &&
      "$target" -max_total_time="$1" -artifact_prefix=build/fuzz/findings/"$name"- -print_final_stats=1 \
        $([ -f fuzz/reply.dict ] && echo -dict=fuzz/reply.dict) "$scratch" "$seeds" >>"$log" 2>&1; then
      passed=$((passed + 1))
      say "  $name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1) executions"
    else
      tail -n 40 "$log" >&2
      count_failure "$name; the input is in build/fuzz/findings"
    fi
    rm -rf "$scratch"
  done
  rm -f "$log"
}

run_check() {
  local log
  log=$(mktemp)
  if "$1" >"$log" 2>&1; then
    passed=$((passed + 1))
    say "  $(basename "$1"): passed"
  else
    cat "$log" >&2
    count_failure "$1"
  fi
  rm -f "$log"
}

close_tally() {
  printf '%d passed, %d failed%s\n' "$passed" "$failed" \
    "$([ "$skipped" -eq 0 ] || printf ', %d skipped' "$skipped")"
  [ "$failed" -eq 0 ]
  exit
}
