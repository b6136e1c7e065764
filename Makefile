# The two entry points: `make demo` and `make test`. Both install what the
# build needs when it is missing (tools/setup.sh), configure and build.

BUILD_DIR ?= build
JOBS ?= $(shell nproc)

.PHONY: all setup configure build test demo clean

all: build

setup:
	@sh tools/setup.sh

configure: setup
	@cmake -S . -B $(BUILD_DIR)

build: configure
	@cmake --build $(BUILD_DIR) -j $(JOBS)

test: build
	@cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

demo: build
	@sh tools/demo.sh $(BUILD_DIR)

clean:
	@rm -rf $(BUILD_DIR)
