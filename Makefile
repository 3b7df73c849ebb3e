# Wraps the CMake presets. `make run` and `make test` do all the set-up on a
# fresh Debian machine.
PRESET ?= dev

.PHONY: deps configure build run test bench clean

deps:
	@scripts/install-deps.sh

configure: deps
	@cmake --preset $(PRESET) >/dev/null

build: configure
	@cmake --build --preset $(PRESET)

run: build
	@scripts/run-game.sh build/$(PRESET)/bin/jarlsvakt

test: build
	@ctest --preset $(PRESET)

bench: deps
	@cmake --preset release >/dev/null
	@cmake --build --preset release --target jarlsvakt-bench
	@build/release/bin/jarlsvakt-bench

clean:
	rm -rf build
