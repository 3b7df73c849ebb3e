# Wraps the CMake presets. `make run` and `make test` do all the set-up on a
# fresh Debian machine.
PRESET ?= dev
# How long `make fuzz` runs each fuzzing harness, in seconds.
FUZZ_SECONDS ?= 60
# How many moves `make soak` plays on each shipped layout.
SOAK_MOVES ?= 10000

.PHONY: deps configure build run test test-asan fuzz bench soak package clean

deps:
	@scripts/install-deps.sh

configure: deps
	@cmake --preset $(PRESET) >/dev/null

build: configure
	@cmake --build --preset $(PRESET)

# The player gets the optimised program (with debug information), whatever
# PRESET the tests use.
run: deps
	@cmake --preset release >/dev/null
	@cmake --build --preset release --target jarlsvakt jarlsvakt_data
	@scripts/run-game.sh build/release/bin/jarlsvakt

# The tests, then a short run of each fuzzing harness (skipped without clang).
test: build
	@ctest --preset $(PRESET)
	@FUZZ_SECONDS=5 scripts/fuzz.sh

# The engine, the command-line tool and the engine tests under
# AddressSanitizer and UndefinedBehaviorSanitizer.
test-asan: deps
	@cmake --preset asan-ubsan >/dev/null
	@cmake --build --preset asan-ubsan
	@ctest --preset asan-ubsan

# Each fuzzing harness of the file readers for FUZZ_SECONDS seconds.
fuzz: deps
	@FUZZ_SECONDS=$(FUZZ_SECONDS) scripts/fuzz.sh

bench: deps
	@cmake --preset release >/dev/null
	@cmake --build --preset release --target jarlsvakt-bench
	@build/release/bin/jarlsvakt-bench
	@if grep -q '^JARLSVAKT_UI:BOOL=ON' build/release/CMakeCache.txt; then \
		cmake --build --preset release --target jarlsvakt-startup-bench && \
		QT_QPA_PLATFORM=offscreen build/release/bin/jarlsvakt-startup-bench 2>/dev/null; \
	else echo "start-up time skipped: the window is not built"; fi

# A long self-play run on every shipped layout with the moves log on, its
# memory and its log checked (docs/benchmarks.md); not part of `make test`.
soak: deps
	@cmake --preset release >/dev/null
	@cmake --build --preset release --target jarlsvakt-cli
	@build/release/bin/jarlsvakt-cli soak patf.txt pattern1.txt pattern2.txt pattern3.txt pattern4.txt \
		pattern5.txt --moves $(SOAK_MOVES) --log build/soak

# The optimised programs as a Debian package, build/release/jarlsvakt_*.deb,
# whose dependencies pull in the Qt libraries.
package: deps
	@cmake --preset release >/dev/null
	@cmake --build --preset release --target jarlsvakt jarlsvakt-cli jarlsvakt_data
	@cd build/release && cpack

clean:
	rm -rf build
