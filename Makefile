# make run, make test: everything from a bare Debian 12 machine. PRESET is debug, release or asan.
PRESET ?= debug
BUILD := build/$(PRESET)
JOBS := $(shell nproc)

.PHONY: setup build run test pictures fuzz bench format lint clean

setup:
	@scripts/install-packages

build: setup
	@mkdir -p build
	cmake --preset $(PRESET) > build/$(PRESET)-configure.log 2>&1 || { cat build/$(PRESET)-configure.log; exit 1; }
	cmake --build --preset $(PRESET) -j $(JOBS)

run: build
	@scripts/run-sample $(BUILD)

test: build
	QT_QPA_PLATFORM=offscreen ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

# Pictures of the dialog for docs/, in the offscreen style that tests have.
pictures: build
	cmake --build $(BUILD) -j $(JOBS) --target pictures
	QT_QPA_PLATFORM=offscreen $(BUILD)/bin/pictures docs/pictures
	for scale in 1.5 2; do \
	  QT_SCALE_FACTOR=$$scale QT_QPA_PLATFORM=offscreen $(BUILD)/bin/pictures docs/pictures dialog-$${scale}x; \
	done

# SECONDS of fuzzing, for all targets together.
SECONDS ?= 60
fuzz: setup
	@mkdir -p build
	cmake --preset fuzz > build/fuzz-configure.log 2>&1 || { cat build/fuzz-configure.log; exit 1; }
	cmake --build --preset fuzz -j $(JOBS) --target fuzz
	fuzz/run.py build/fuzz $(SECONDS)

bench: setup
	@mkdir -p build
	cmake --preset release > build/release-configure.log 2>&1 || { cat build/release-configure.log; exit 1; }
	cmake --build --preset release -j $(JOBS) --target panel_bench
	QT_QPA_PLATFORM=offscreen build/release/bin/panel_bench --benchmark_min_time=0.1 --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true

format:
	git ls-files '*.h' '*.cpp' | xargs clang-format -i

lint: build
	git ls-files '*.cpp' ':!tests' ':!bench' ':!fuzz' ':!tools/pictures' | xargs -P $(JOBS) -n 4 clang-tidy -p $(BUILD) --quiet 2>/dev/null

clean:
	rm -rf build out
