#!/usr/bin/env bash
# Checks that every source file includes only its own folder and the layers
# below it, and names each include that breaks the rule. Usage:
#   check-layers.sh [ROOT]   (ROOT: the source tree, this repository by default)
# Exit 0 when every include keeps to the layers, 1 otherwise.
set -uo pipefail
root="${1:-$(dirname "$0")/..}"

# The folders each layer may include, lowest layer first.
declare -A allowed=(
  [core]="core"
  [ai]="core ai"
  [records]="core records"
  [session]="core ai records session"
  [ui]="core ai records session ui"
  [cli]="core ai records session cli"
)

status=0
for layer in core ai records session ui cli; do
  [[ -d "$root/$layer" ]] || continue
  while IFS=: read -r file line text; do
    target=$(sed -E 's/.*#include "([^/"]+)\/.*/\1/' <<<"$text")
    [[ -n "${allowed[$target]+x}" ]] || continue   # not a layer's folder
    if [[ " ${allowed[$layer]} " != *" $target "* ]]; then
      included=$(sed -E 's/.*#include "([^"]+)".*/\1/' <<<"$text")
      echo "${file#"$root"/}:$line includes $included: $layer/ may include only $(sed -E "s/([a-z]+)/\1\//g; s/ /, /g" <<<"${allowed[$layer]}")"
      status=1
    fi
  done < <(grep -rnE --include='*.h' --include='*.cpp' --include='*.inl' '^\s*#\s*include "[^/"]+/' "$root/$layer")
done
exit $status
