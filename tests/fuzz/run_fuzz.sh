#!/usr/bin/env bash
# Runs random scripts through the batch runner, some of them on a full disk
# or in a read-only folder, with files to open that no one should (a FIFO, a
# huge file, a folder, /dev/zero). A script passes when it runs to its end,
# stops at a line the runner refuses (exit 2), or, on a failing disk, ends
# with exit 1 and the files it could not write named. It fails on a crash, a
# hang, a sanitizer report (leaks included), an exit 1 on a good disk, a PDF
# that pdfinfo rejects, an SVG cut short, a trace line that is not JSON, a
# temporary file left behind, or a file changed by a save that failed.
# Failing scripts are kept for replay. At the end it prints how often each
# form and each handler was reached.
#
#   run_fuzz.sh PROGRAM GENERATOR SEED COUNT [JOBS] [SECONDS]
#
# FUZZ_LENGTH sets the scripts' length (40 commands; a deep script works its
# page for two to six times as many).
# The trace checker and the failing-disk library are taken from beside the
# generator; the program should be built with GRIDPAGES_SANITIZE, which
# also counts the handlers that run.
set -u
prog=$(readlink -f "$1") gen=$(readlink -f "$2") seed=$3 count=$4 jobs=${5:-2} limit=${6:-20}
here=$(dirname "$(readlink -f "$0")")
tools=$(dirname "$gen")
check=$tools/gridpages_tracecheck shim=$tools/libgridpages_failwrites.so
for f in "$check" "$shim"; do [ -e "$f" ] || { echo "fuzz: $f is missing"; exit 1; }; done
work=$(mktemp -d /tmp/gridpages-fuzz-XXXXXX)
keep=${FUZZ_FAILURES:-$PWD/fuzz-failures}
mkdir -p "$work/scripts" "$work/reach" "$work/prepared"
started=$(date +%s)
"$gen" "$seed" "$count" "$work/scripts" "${FUZZ_LENGTH:-40}" || { echo "fuzz: the generator failed"; exit 1; }

# What each run's folder starts with (the names are the generator's).
p=$work/prepared
printf ' 6 \r\n 5 \r\n 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n 6000 \r\n 8760 \r\n 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n' > "$p/points"
{ printf ' 201 \r\n 200 \r\n'; for i in $(seq 1 200); do printf ' %d \r\n %d \r\n' $(((i * 7919) % 12000)) $(((i * 104729) % 8000)); done; } > "$p/bigpoints"
mkdir "$p/folder"
ln -s /dev/zero "$p/zero"

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1:verify_asan_link_order=0}
export LSAN_OPTIONS=${LSAN_OPTIONS:-suppressions=$here/lsan.supp:print_suppressions=0}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
export QT_QPA_PLATFORM=offscreen

# run DIR MODE SECONDS: the program on DIR's script, in DIR/cwd; its status.
run() {
  local dir=$1 mode=$2 seconds=$3 trace=$1/trace.jsonl extra=()
  [ "$mode" = nospace ] && [ $((n % 3)) -eq 0 ] && trace=$dir/cwd/trace.jsonl
  [ $((n % 4)) -eq 3 ] && extra=(--svg svg)
  local env=(GRIDPAGES_REACH_FILE="$dir/reach")
  [ "$mode" = normal ] || env+=(LD_PRELOAD="$shim" GRIDPAGES_FAIL_UNDER="$dir/cwd" GRIDPAGES_FAIL_AS="$mode")
  (cd "$dir/cwd" && env "${env[@]}" timeout -k 2 "$seconds" "$prog" --script "$script" --trace "$trace" \
    --pdf pdf "${extra[@]}" >"$dir/out.txt" 2>"$dir/err.txt")
}

# prepare DIR: a fresh folder for one run.
prepare() {
  rm -rf "$1"; mkdir -p "$1/cwd"
  cp -a "$work/prepared/." "$1/cwd/"
  mkfifo "$1/cwd/fifo"
  truncate -s 1G "$1/cwd/huge"  # sparse: no disk is used
}

# The verdict on a finished run: ok, refused, faulted (an expected output
# failure on a failing disk) or the kind of failure.
judge() {
  local dir=$1 mode=$2 status=$3
  if grep -q -E 'AddressSanitizer|runtime error:|LeakSanitizer' "$dir/err.txt"; then echo sanitizer; return; fi
  if [ "$status" -eq 124 ] || [ "$status" -eq 137 ]; then echo hang; return; fi
  if [ "$status" -ge 128 ] || [ "$status" -gt 2 ]; then echo crash; return; fi
  local verdict=ok
  [ "$status" -eq 2 ] && verdict=refused
  if [ "$status" -eq 1 ]; then
    [ "$mode" = normal ] && { echo output-failed; return; }
    grep -q 'not written: ' "$dir/err.txt" || { echo silent-failure; return; }
    verdict=faulted
  fi
  [ -f "$dir/trace.jsonl" ] && ! "$check" "$dir/trace.jsonl" >>"$dir/err.txt" && { echo bad-trace; return; }
  for f in "$dir"/cwd/pdf/*.pdf; do
    [ -e "$f" ] || continue
    pdfinfo "$f" >/dev/null 2>"$dir/pdfinfo.txt" && [ ! -s "$dir/pdfinfo.txt" ] ||
      { cat "$dir/pdfinfo.txt" >>"$dir/err.txt"; echo bad-pdf; return; }
  done
  for f in "$dir"/cwd/svg/*.svg; do
    [ -e "$f" ] || continue
    [ "$(tail -c 7 "$f")" = "</svg>" ] || [ "$(tail -c 8 "$f")" = $'</svg>\n' ] || { echo bad-svg; return; }
  done
  [ -n "$(find "$dir/cwd" -name '.gridpages-*' -print -quit)" ] && { echo litter; return; }
  if [ "$mode" != normal ]; then
    for f in points bigpoints; do cmp -s "$work/prepared/$f" "$dir/cwd/$f" || { echo clobbered; return; }; done
  fi
  echo "$verdict"
}

one() {
  script=$1
  n=$((10#$(basename "$script" .txt | tr -dc 0-9)))
  case $((n % 8)) in 0) mode=nospace ;; 1) mode=readonly ;; *) mode=normal ;; esac
  dir=$work/run-$n
  prepare "$dir"
  run "$dir" "$mode" "$limit"
  status=$?
  if [ $status -eq 124 ] || [ $status -eq 137 ]; then
    # A busy machine can stall a run: a deep script that takes 8 s of one
    # core was seen to need 80 s when the machine was loaded eight times
    # over. One more try with ten times the time tells a slow run from a hang.
    prepare "$dir"
    run "$dir" "$mode" "$((limit * 10))"
    status=$?
    [ $status -eq 124 ] || [ $status -eq 137 ] || slow=" slow"
  fi
  verdict=$(judge "$dir" "$mode" "$status")
  echo "$verdict $mode $script${slow:-}"
  [ -f "$dir/reach" ] && mv "$dir/reach" "$work/reach/$n"
  case $verdict in ok|refused|faulted) ;; *)
    mkdir -p "$keep"
    cp "$script" "$keep/$(basename "$script" .txt)-$verdict-$mode.txt"
    cp "$dir/err.txt" "$keep/$(basename "$script" .txt)-$verdict-$mode.err" 2>/dev/null ;;
  esac
  rm -rf "$dir"
}
export -f one run prepare judge
export prog work keep limit check shim

ls "$work"/scripts/*.txt | xargs -P "$jobs" -I{} bash -c 'one {}' > "$work/results.txt"
seconds=$(($(date +%s) - started))
"$here/reach_table.sh" "$prog" "$work/reach" "$count"
r=$work/results.txt
tally() { grep -c -E "^($1) " "$r"; }
bad=$(tally 'sanitizer|hang|crash|output-failed|silent-failure|bad-trace|bad-pdf|bad-svg|litter|clobbered')
grep -v -E '^(ok|refused|faulted) ' "$r" | head -n 20
echo "fuzz: $count scripts (seed $seed) in $seconds s with $jobs jobs:" \
  "$(tally ok) ran to the end, $(tally refused) stopped at a line the runner refused," \
  "$(tally faulted) ended with their output refused by a full or read-only disk" \
  "($(grep -c ' nospace ' "$r") on a full disk, $(grep -c ' readonly ' "$r") read-only)," \
  "$(grep -c ' slow$' "$r") only on a second, longer try; $bad failed"
[ "$bad" -gt 0 ] && echo "fuzz: failing scripts kept in $keep"
rm -rf "$work"
echo "fuzz: $((count - bad)) passed, $bad failed"
[ "$bad" -eq 0 ]
