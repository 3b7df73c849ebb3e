#!/usr/bin/env bash
# Installs whatever of the build and test dependencies is missing, with
# apt-get (through sudo when not root). Does nothing when all is there.
set -euo pipefail

packages=(
  g++ make cmake ninja-build pkg-config
  libgtest-dev libgmock-dev
  qt6-base-dev qt6-image-formats-plugins
  xvfb xauth fonts-dejavu-core
  clang libclang-rt-14-dev
)

missing=()
for p in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
  [[ "$status" == "install ok installed" ]] || missing+=("$p")
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
if [[ $(id -u) -ne 0 ]]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
