#!/usr/bin/env bash
# Starts the game, or says in one line why it cannot.
set -u
program="$1"
if [[ -z "${DISPLAY:-}" && -z "${WAYLAND_DISPLAY:-}" && -z "${QT_QPA_PLATFORM:-}" ]]; then
  echo "JarlsVakt needs a display: none is set (DISPLAY is empty); run it on a desktop or under xvfb-run." >&2
  exit 1
fi
exec "$program"
