#!/usr/bin/env bash
# Installs the build into a temporary prefix and starts the installed programs
# with a fresh home: the user's folder is filled with the shipped files on the
# first start, a file the user changed is kept on the next, and the window
# starts (it is still running when stopped). Usage: install_test.sh BUILD_DIR
set -uo pipefail
build="$1"
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
fail() { echo "FAIL: $*"; exit 1; }

cmake --install "$build" --prefix "$tmp/prefix" >/dev/null || fail "cmake --install failed"
for file in bin/jarlsvakt bin/jarlsvakt-cli share/jarlsvakt/all.col share/applications/jarlsvakt.desktop \
            share/icons/hicolor/scalable/apps/jarlsvakt.svg; do
  [[ -e "$tmp/prefix/$file" ]] || fail "$file is not installed"
done

export HOME="$tmp/home" QT_QPA_PLATFORM=offscreen
unset XDG_DATA_HOME JARLSVAKT_HOME
user="$HOME/.local/share/JarlsVakt"
# The window runs until stopped; ending on its own means it refused to start.
timeout 10 "$tmp/prefix/bin/jarlsvakt"
[[ $? -eq 124 ]] || fail "the installed window ended by itself instead of running"
for file in "$tmp"/prefix/share/jarlsvakt/*; do
  cmp -s "$file" "$user/$(basename "$file")" || fail "$(basename "$file") was not copied into $user"
done

echo "my own help page" >"$user/jarlsvakt.htm"
"$tmp/prefix/bin/jarlsvakt-cli" layout patf.txt >/dev/null || fail "the installed jarlsvakt-cli cannot read patf.txt"
[[ $(cat "$user/jarlsvakt.htm") == "my own help page" ]] || fail "a file the user changed was overwritten"
echo "installed into $tmp/prefix; the user's folder $user filled and kept"
