# Tarnelo: `make run` starts the app, `make test` runs every test.
BUILD_DIR ?= build
JOBS ?= $(shell nproc)

.PHONY: all deps configure build run test clean

all: build

deps:
	scripts/install-deps.sh

configure: deps
	cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo

build: configure
	cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	scripts/run.sh $(BUILD_DIR)

test: build
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j $(JOBS)

clean:
	rm -rf $(BUILD_DIR)
