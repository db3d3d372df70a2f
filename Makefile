# Tarnelo: `make run` starts the app, `make test` runs every test, `make package`
# makes a Debian package of an installed app with its backend.
BUILD_DIR ?= build
# Its own build, whose built-in settings point at the packaged backend; it
# builds only what it installs, not the tests and benchmarks.
PACKAGE_BUILD_DIR ?= build-package
JOBS ?= $(shell nproc)

.PHONY: all deps configure build run test package bench clean

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

package: deps
	cmake -S . -B $(PACKAGE_BUILD_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr -DTARNELO_PACKAGED_BACKEND=ON \
	    -DCMAKE_SKIP_INSTALL_ALL_DEPENDENCY=ON
	cmake --build $(PACKAGE_BUILD_DIR) -j $(JOBS) --target tarnelo tarnelo-devserver tarnelo_gazetteer tarnelo_tiles
	cd $(PACKAGE_BUILD_DIR) && cpack

# Start-up, memory and fix-to-header figures beside a bare Qt Quick window.
bench: build
	bench/startup.py $(BUILD_DIR)

clean:
	rm -rf $(BUILD_DIR) $(PACKAGE_BUILD_DIR)
