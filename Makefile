# gridpages: build, run and test.
#
# `make run` and `make test` first install whatever Debian packages are
# missing, so they work on a fresh Debian 12 machine.

BUILD_DIR ?= build
BUILD_TYPE ?= Release
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

PACKAGES := cmake make g++ pkg-config qt6-base-dev libgl-dev libgtest-dev \
            libgmock-dev libbenchmark-dev poppler-utils fonts-liberation fonts-liberation2 \
            fonts-dejavu-core cups cups-ipp-utils libcups2-dev printer-driver-cups-pdf librsvg2-bin dpkg-dev file \
            appstream

SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)

.PHONY: all deps configure build run test bench install package fuzz asan pictures soak clean

all: build

deps:
	@missing=""; \
	for p in $(PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q 'install ok installed' || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Installing:$$missing"; \
	  $(SUDO) apt-get update -qq && \
	  DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq $$missing; \
	fi

configure: deps
	@if [ ! -f $(BUILD_DIR)/CMakeCache.txt ]; then \
	  cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=$(BUILD_TYPE); \
	fi

build: configure
	cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	./$(BUILD_DIR)/gridpages

ASAN_DIR ?= build-asan
FUZZ_SEED ?= $(shell date +%s)
FUZZ_COUNT ?= 10000
# make test's sample: fewer, shorter scripts than a long run's, each one
# deeper and checked for more than the shallow scripts of before (leaks,
# PDFs, trace lines, failing disks), so the sample costs no more than it did.
FUZZ_SAMPLE ?= 120
FUZZ_SAMPLE_LENGTH ?= 8

# The program and the script generator with AddressSanitizer,
# UndefinedBehaviorSanitizer (float-to-integer overflow included) and
# LeakSanitizer, the trace checker and the failing-disk library, for the
# robustness harness.
asan: deps
	@if [ ! -f $(ASAN_DIR)/CMakeCache.txt ]; then \
	  cmake -S . -B $(ASAN_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DGRIDPAGES_SANITIZE=ON; \
	fi
	cmake --build $(ASAN_DIR) -j $(JOBS) --target gridpages gridpages_fuzzgen gridpages_tracecheck \
	  gridpages_failwrites

test: build asan
	cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)
	FUZZ_LENGTH=$(FUZZ_SAMPLE_LENGTH) tests/fuzz/run_fuzz.sh $(ASAN_DIR)/gridpages $(ASAN_DIR)/tests/gridpages_fuzzgen \
	  20261123 $(FUZZ_SAMPLE) $(JOBS)

# A longer run of the harness; FUZZ_SEED and FUZZ_COUNT choose it (about
# 1 to 8 s of one core a script; JOBS=1 leaves a core to others).
fuzz: asan
	tests/fuzz/run_fuzz.sh $(ASAN_DIR)/gridpages $(ASAN_DIR)/tests/gridpages_fuzzgen $(FUZZ_SEED) $(FUZZ_COUNT) $(JOBS)

# Every benchmark of bench/; each module's figures go to
# build/bench-results/*.json, and one table of every page kind is printed,
# then the canvas against a bare QPainter loop, what a trace adds to a
# dense sheet, and the table of the window's stalls after a key or click.
bench: build
	@mkdir -p $(BUILD_DIR)/bench-results
	@for b in $(BUILD_DIR)/bench/bench_*; do \
	  case $$b in *bench_pages|*bench_keystroke|*bench_canvas_floor|*bench_trace|*_autogen) continue;; esac; \
	  [ -x "$$b" ] || continue; \
	  echo "running $$(basename $$b)"; \
	  QT_QPA_PLATFORM=offscreen "$$b" --benchmark_out=$(BUILD_DIR)/bench-results/$$(basename $$b).json \
	    --benchmark_out_format=json > /dev/null 2>&1 || echo "$$(basename $$b) failed"; \
	done
	@QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/bench/bench_pages
	@echo "running bench_canvas_floor"
	@QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/bench/bench_canvas_floor \
	  --benchmark_out=$(BUILD_DIR)/bench-results/bench_canvas_floor.json --benchmark_out_format=json 2>/dev/null | \
	  sed -n '/^The canvas painting/,$$p'
	@echo "running bench_trace"
	@QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/bench/bench_trace \
	  --benchmark_out=$(BUILD_DIR)/bench-results/bench_trace.json --benchmark_out_format=json 2>/dev/null | \
	  sed -n '/^The dense triangle sheet/,$$p'
	@echo "running bench_keystroke"
	@QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/bench/bench_keystroke \
	  --benchmark_out=$(BUILD_DIR)/bench-results/bench_keystroke.json --benchmark_out_format=json 2>/dev/null | \
	  sed -n '/^The window after/,$$p'

# The guide's pictures in docs/pictures: the sheets from their PDFs, the
# forms from the real windows under Xvfb.
pictures: build
	@dpkg-query -W -f='$${Status}' xvfb 2>/dev/null | grep -q 'install ok installed' || \
	  { $(SUDO) apt-get update -qq && DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq xvfb xauth; }
	cmake --build $(BUILD_DIR) -j $(JOBS) --target gridpages_shots
	tools/make_pictures.sh $(BUILD_DIR) docs/pictures

# Explode It running in the window at a 1 ms interval for SOAK_MINUTES,
# its resident memory printed once a minute: flat after the first minute,
# or a leak.
SOAK_MINUTES ?= 10
soak: build
	cmake --build $(BUILD_DIR) -j $(JOBS) --target gridpages_soak
	QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/gridpages_soak $(SOAK_MINUTES) 1

PREFIX ?= /usr/local

# The program, its desktop entry, icons, man page and metainfo, so that it
# shows in the desktop's menu.
install: build
	$(SUDO) cmake --install $(BUILD_DIR) --prefix $(PREFIX)
	@if command -v update-desktop-database >/dev/null; then \
	  $(SUDO) update-desktop-database $(PREFIX)/share/applications; fi
	@if command -v gtk-update-icon-cache >/dev/null; then \
	  $(SUDO) gtk-update-icon-cache -q -t $(PREFIX)/share/icons/hicolor; fi

# The Debian package $(BUILD_DIR)/gridpages_VERSION_ARCH.deb, for
# `apt install ./build/gridpages_*.deb`; an older version's package is
# removed so that the pattern names one file.
package: build
	rm -f $(BUILD_DIR)/gridpages_*.deb
	cd $(BUILD_DIR) && cpack -G DEB
	@ls $(BUILD_DIR)/gridpages_*.deb

clean:
	rm -rf $(BUILD_DIR)
