#!/usr/bin/env bash
# Runs random scripts through the batch runner and fails on a crash, a hang
# or a sanitizer report. Failing scripts are kept for replay.
#
#   run_fuzz.sh PROGRAM GENERATOR SEED COUNT [JOBS] [SECONDS]
set -u
prog=$(readlink -f "$1") gen=$(readlink -f "$2") seed=$3 count=$4 jobs=${5:-2} limit=${6:-10}
work=$(mktemp -d /tmp/gridpages-fuzz-XXXXXX)
keep=${FUZZ_FAILURES:-$PWD/fuzz-failures}
mkdir -p "$work/scripts"
"$gen" "$seed" "$count" "$work/scripts" || { echo "fuzz: the generator failed"; exit 1; }

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=0:abort_on_error=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
export QT_QPA_PLATFORM=offscreen

one() {
  script=$1
  run=$(mktemp -d "$work/run-XXXXXX")
  # Each script in a folder of its own: string art files land there.
  (cd "$run" && timeout -k 2 "$limit" "$prog" --script "$script" --trace /dev/null --pdf pdf >out.txt 2>err.txt)
  status=$?
  verdict=ok
  if [ $status -eq 124 ] || [ $status -eq 137 ]; then
    # A busy machine can stall a run: one more try with three times the
    # time tells a slow run from a hang.
    rm -rf "$run"/pdf
    (cd "$run" && timeout -k 2 "$((limit * 3))" "$prog" --script "$script" --trace /dev/null --pdf pdf >out.txt 2>err.txt)
    status=$?
    [ $status -eq 124 ] || [ $status -eq 137 ] || { echo "slow $script"; rm -rf "$run"; return; }
    verdict=hang
  elif [ $status -ge 128 ]; then verdict=crash
  elif grep -q -E 'AddressSanitizer|runtime error:|LeakSanitizer' "$run/err.txt"; then verdict=sanitizer
  elif [ $status -eq 2 ]; then verdict=refused
  elif [ $status -ne 0 ]; then verdict=crash
  fi
  echo "$verdict $script"
  if [ "$verdict" = hang ] || [ "$verdict" = crash ] || [ "$verdict" = sanitizer ]; then
    mkdir -p "$keep"
    cp "$script" "$keep/$(basename "$script" .txt)-$verdict.txt"
    cp "$run/err.txt" "$keep/$(basename "$script" .txt)-$verdict.err" 2>/dev/null
  fi
  rm -rf "$run"
}
export -f one
export prog work keep limit

ls "$work"/scripts/*.txt | xargs -P "$jobs" -I{} bash -c 'one {}' > "$work/results.txt"
ok=$(grep -c -E '^(ok|slow) ' "$work/results.txt")
slow=$(grep -c '^slow ' "$work/results.txt")
refused=$(grep -c '^refused ' "$work/results.txt")
bad=$(grep -c -E '^(hang|crash|sanitizer) ' "$work/results.txt")
grep -E '^(hang|crash|sanitizer) ' "$work/results.txt" | head -n 20
echo "fuzz: $count scripts (seed $seed): $ok ran to the end ($slow only on a second, longer try), $refused stopped at a line the runner refused, $bad failed"
[ "$bad" -gt 0 ] && echo "fuzz: failing scripts kept in $keep"
rm -rf "$work"
echo "fuzz: $((ok + refused)) passed, $bad failed"
[ "$bad" -eq 0 ]
