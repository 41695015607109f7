#!/usr/bin/env bash
# Builds the measurements in Release and prints their table with the machine on top, ready for docs/prestazioni.md.
# What is given on the command line goes to the measuring program, such as --benchmark_filter=load.
set -euo pipefail
cd "$(dirname "$0")/.."

{
  cmake --preset release -DKELVO_BENCHMARKS=ON
  cmake --build build/release --target kelvo-misure
} >&2

voce() { sed -n "s/^CMAKE_$1:[A-Z]*=//p" build/release/CMakeCache.txt; }
processore=$(sed -n 's/^model name[[:space:]]*: //p' /proc/cpuinfo | head -n 1)
sistema=$(. /etc/os-release && echo "$PRETTY_NAME")

echo "- Processor: ${processore:-$(uname -m)}, $(nproc) cores at hand"
echo "- System: $sistema, kernel $(uname -r)"
echo "- Compiler: $("$(voce CXX_COMPILER)" --version | head -n 1), $(voce BUILD_TYPE) ($(voce CXX_FLAGS_RELEASE))"
echo "- Load of the machine over the last minute: $(cut -d ' ' -f 1 /proc/loadavg)"
echo "- Date: $(date +%F), $(git rev-parse --short HEAD 2>/dev/null || echo 'no repository')"
echo
build/release/benchmarks/kelvo-misure "$@"
