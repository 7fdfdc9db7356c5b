#!/bin/sh
# Builds the fuzzers and lets each run on its corpus, then on its own inputs for SECONDS (60).
# usage: tools/fuzz.sh [SECONDS]
#
# What breaks a promise of the program stops it: the input is then in build/fuzz/findings. Mend the
# program and keep the input in the corpus.
set -eu
cd "$(dirname "$0")/.."
seconds=${1:-60}

echo "Building the fuzzers in build/fuzz ..."
[ -f build/fuzz/build.ninja ] || cmake --preset fuzz
cmake --build --preset fuzz

findings=build/fuzz/findings
inputs=build/fuzz/inputs
log=build/fuzz/fuzz.log
mkdir -p "$findings" "$inputs"

echo "Fuzzing for $seconds seconds ..."
if ! build/fuzz/fuzz/rtf_fuzz -max_total_time="$seconds" -max_len=8192 -rss_limit_mb=1024 \
  -timeout=10 -dict=fuzz/rtf.dict -artifact_prefix="$findings/" "$inputs" fuzz/corpus/rtf \
  >"$log" 2>&1; then
  tail -n 60 "$log"
  echo "The fuzzer found a fault. Its input:" >&2
  grep -o "$findings/.*" "$log" >&2 || true
  exit 1
fi
tail -n 1 "$log"
