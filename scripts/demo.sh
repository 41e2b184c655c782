#!/usr/bin/env bash
# Builds kelvo and runs the demo script over the example design.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/build.sh
cd examples
../build/kelvo demo.tcl
