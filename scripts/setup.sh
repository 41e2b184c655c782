#!/usr/bin/env bash
# Installs from Debian's packages what building and testing kelvo needs,
# and does nothing when all of it is there.
set -euo pipefail

packages=(g++ cmake make tcl-dev libboost-dev zlib1g-dev libgtest-dev libbenchmark-dev python3)
missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$package")
  fi
done
if [ "${#missing[@]}" -eq 0 ]; then
  exit 0
fi
echo "setup: installing ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
