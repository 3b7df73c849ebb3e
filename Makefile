# Wraps the CMake presets. `make run` and `make test` do all the set-up on a
# fresh Debian machine.
PRESET ?= dev
# How long `make fuzz` runs each fuzzing harness, in seconds.
FUZZ_SECONDS ?= 60

.PHONY: deps configure build run test test-asan fuzz bench clean

deps:
	@scripts/install-deps.sh

configure: deps
	@cmake --preset $(PRESET) >/dev/null

build: configure
	@cmake --build --preset $(PRESET)

run: build
	@scripts/run-game.sh build/$(PRESET)/bin/jarlsvakt

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

clean:
	rm -rf build
