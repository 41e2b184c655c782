#!/usr/bin/env bash
# Builds kelvo and runs every unit and golden test.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/build.sh
ctest --test-dir build --output-on-failure -j"$(nproc)"
