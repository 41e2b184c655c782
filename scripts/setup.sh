#!/usr/bin/env bash
# Installs from Debian's packages what building and testing kelvo needs,
# and does nothing when all of it is there. tcl-tclreadline (line editing at
# the prompt through GNU readline) is installed where Debian has it; without
# it the shell uses its own line editor.
set -euo pipefail

packages=(g++ cmake make tcl-dev libboost-dev zlib1g-dev libgtest-dev libbenchmark-dev python3)
# Asked for: KELVO_FUZZ=1 adds clang and its libFuzzer runtime (scripts/fuzz.sh),
# KELVO_CI=1 those and clang-format (.ci/run).
if [ "${KELVO_FUZZ:-0}" = 1 ] || [ "${KELVO_CI:-0}" = 1 ]; then
  packages+=(clang libclang-rt-dev)
fi
if [ "${KELVO_CI:-0}" = 1 ]; then
  packages+=(clang-format)
fi
optional=(tcl-tclreadline)

installed() {
  dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q "install ok installed"
}

missing=()
for package in "${packages[@]}"; do
  installed "$package" || missing+=("$package")
done
missing_optional=()
for package in "${optional[@]}"; do
  installed "$package" || missing_optional+=("$package")
done
if [ "${#missing[@]}" -eq 0 ] && [ "${#missing_optional[@]}" -eq 0 ]; then
  exit 0
fi
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
updated=0
if [ "${#missing[@]}" -ne 0 ]; then
  echo "setup: installing ${missing[*]}"
  $sudo apt-get update -qq
  updated=1
  $sudo apt-get install -y -qq "${missing[@]}"
fi
for package in "${missing_optional[@]}"; do
  if [ "$updated" -eq 0 ]; then
    $sudo apt-get update -qq || true
    updated=1
  fi
  if apt-cache show "$package" >/dev/null 2>&1; then
    echo "setup: installing $package"
    $sudo apt-get install -y -qq "$package" || echo "setup: $package not installed; the shell's own line editor serves"
  fi
done
