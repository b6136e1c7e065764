# The two entry points: `make demo` and `make test`. Both install what the
# build needs when it is missing (tools/setup.sh), configure and build.
# `make test-sanitize` runs the whole suite once more, built with
# AddressSanitizer (leaks included) and UndefinedBehaviorSanitizer, with a
# longer run of the random-input test.
# `make test-armhf` builds for the head unit, 32-bit ARM (Debian's armhf),
# with Debian's cross compiler and the armhf Qt unpacked into a sysroot that
# is made once and kept, warnings as errors, and runs the unit tests under
# qemu-arm. The simulator and the benchmarks are desktop-only.
# `make lint` runs clazy, Qt's static analysis, over the plug-in's code;
# `make api-guard` looks for Qt API from after Qt 5.3 there (the suite runs it
# too, as the test qt53_api_guard).
# `make check` runs the three and the lint, one after the other, as CI does.
# `make gallery-check` renders the simulator's gallery in every language and
# compares each picture's pixels with tests/gallery/reference-LANGUAGE.txt;
# differing pictures go side by side into build/gallery-diff/ (`make test`
# runs it after the suite, on the desktop build only). `make gallery-accept`
# writes the references anew after a change that is meant.
# `make translations` brings translations/*.ts up to date with the code.
# `make package` makes the bench's Debian package from the desktop build into
# build/packages; `make package-armhf` the head unit's from the armhf build
# into build-armhf/packages, or, given a unit's kit
# (`make package-armhf TOOLCHAIN=FILE SYSROOT=DIR`), from a build of only
# what goes onto a unit, made with the kit into build-unit/packages.
# `make test-armhf` makes such a unit build too, with Debian's armhf Qt
# standing in for a kit, and checks its package as the suite checks the
# armhf build's.

BUILD_DIR ?= build
SANITIZE_DIR ?= build-sanitize
ARMHF_DIR ?= build-armhf
ARMHF_SYSROOT ?= $(ARMHF_DIR)/sysroot
# A unit's kit for make package-armhf: its toolchain file and its sysroot,
# and where its build goes.
TOOLCHAIN ?=
SYSROOT ?=
UNIT_DIR ?= build-unit
JOBS ?= $(shell nproc)
FUZZ_ROUNDS ?= 150

# A report stops the program that made it (the build runs the artwork
# generator too); leaks are reported at exit, where only Qt's own, listed in
# the suppression file, are forgiven.
SANITIZER_ENV = ASAN_OPTIONS=detect_leaks=1:halt_on_error=1:detect_stack_use_after_return=1 \
	UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	LSAN_OPTIONS=suppressions=$(CURDIR)/tools/lsan.supp:print_suppressions=0

.PHONY: all setup configure build test test-sanitize test-armhf lint api-guard check demo clean package package-armhf translations \
	gallery-check gallery-accept

all: build

setup:
	@sh tools/setup.sh

configure: setup
	@cmake -S . -B $(BUILD_DIR)

build: configure
	@cmake --build $(BUILD_DIR) -j $(JOBS)

test: build
	@cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)
	@JOBS=$(JOBS) sh tools/gallery.sh check $(BUILD_DIR)

gallery-check: build
	@JOBS=$(JOBS) sh tools/gallery.sh check $(BUILD_DIR)

gallery-accept: build
	@JOBS=$(JOBS) sh tools/gallery.sh accept $(BUILD_DIR)

# The gallery's pictures are the desktop's: the sanitizer and armhf runs
# leave them to make test.
GALLERY_SKIPPED = echo "gallery check: skipped in this build; make test checks the gallery on the desktop build"

test-sanitize: setup
	@cmake -S . -B $(SANITIZE_DIR) -DCARCONTROL_SANITIZE=ON
	@$(SANITIZER_ENV) cmake --build $(SANITIZE_DIR) -j $(JOBS)
	@cd $(SANITIZE_DIR) && QT_QPA_PLATFORM=offscreen CARCONTROL_FUZZ_ROUNDS=$(FUZZ_ROUNDS) $(SANITIZER_ENV) \
		ctest --output-on-failure -j $(JOBS)
	@$(GALLERY_SKIPPED)

test-armhf:
	@sh tools/setup.sh armhf
	@sh tools/armhf-sysroot.sh $(ARMHF_SYSROOT)
	@cmake -S . -B $(ARMHF_DIR) -DCMAKE_TOOLCHAIN_FILE=$(CURDIR)/cmake/armhf-toolchain.cmake \
		-DCARCONTROL_ARMHF_SYSROOT=$(abspath $(ARMHF_SYSROOT)) -DCMAKE_CXX_FLAGS=-Werror
	@cmake --build $(ARMHF_DIR) -j $(JOBS)
	@cd $(ARMHF_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)
	@# Beside build-armhf/, so that the compiler's cache knows the sysroot's
	@# headers by the same relative paths and the plug-in's code is compiled once.
	@cmake -S . -B $(ARMHF_DIR)-unit -DCARCONTROL_UNIT_ONLY=ON \
		-DCMAKE_TOOLCHAIN_FILE=$(CURDIR)/cmake/armhf-toolchain.cmake \
		-DCARCONTROL_ARMHF_SYSROOT=$(abspath $(ARMHF_SYSROOT)) -DCMAKE_CXX_FLAGS=-Werror
	@cmake --build $(ARMHF_DIR)-unit -j $(JOBS)
	@CARCONTROL_PLUGINCHECK_CONFIG=$(ARMHF_DIR)/plugincheck.json CARCONTROL_UNIT_LOADER=$(ARMHF_DIR)/tests/unitloader \
		CARCONTROL_EMULATOR="qemu-arm -L $(abspath $(ARMHF_SYSROOT))" QT_QPA_PLATFORM=offscreen \
		sh tests/package_check.sh headunit $(ARMHF_DIR)-unit .
	@$(GALLERY_SKIPPED)

lint: build
	@sh tools/setup.sh lint
	@sh tools/lint.sh $(BUILD_DIR) $(JOBS)

api-guard:
	@python3 tools/qtapiguard.py plugin records host dialogView exView pages reverse

check:
	@$(MAKE) --no-print-directory test
	@$(MAKE) --no-print-directory lint
	@$(MAKE) --no-print-directory test-sanitize
	@$(MAKE) --no-print-directory test-armhf

package: build
	@cd $(BUILD_DIR) && cpack

ifeq ($(TOOLCHAIN)$(SYSROOT),)
package-armhf:
	@if [ ! -f $(ARMHF_DIR)/CPackConfig.cmake ]; then \
		echo "make package-armhf: no armhf build in $(ARMHF_DIR); run 'make test-armhf' first" >&2; exit 1; fi
	@cmake --build $(ARMHF_DIR) -j $(JOBS)
	@cd $(ARMHF_DIR) && cpack
else
package-armhf:
	@cmake -S . -B $(UNIT_DIR) -DCARCONTROL_UNIT_ONLY=ON \
		$(if $(TOOLCHAIN),-DCMAKE_TOOLCHAIN_FILE=$(abspath $(TOOLCHAIN))) $(if $(SYSROOT),-DCMAKE_SYSROOT=$(abspath $(SYSROOT)))
	@cmake --build $(UNIT_DIR) -j $(JOBS)
	@cd $(UNIT_DIR) && cpack
endif

# Brings translations/*.ts up to date with the code (lupdate); translations
# already made are kept, vanished texts marked obsolete.
translations: configure
	@cmake --build $(BUILD_DIR) -j $(JOBS) --target translations

demo: build
	@sh tools/demo.sh $(BUILD_DIR)

clean:
	@rm -rf $(BUILD_DIR) $(SANITIZE_DIR) $(ARMHF_DIR) $(ARMHF_DIR)-unit $(UNIT_DIR)
