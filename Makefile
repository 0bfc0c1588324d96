# kovrel: top-level entry points over CMake + Ninja.
#   make demo   build everything and run the kovrel tool on its sample
#   make test   build and run every test (plain, then ASan+UBSan, exports)
#   make bench  build and run the benchmarks, then time the kovrel tool on a large recording
#               and measure its live UDP input capacity
#   make fuzz   build the libFuzzer targets with clang; run decode_fuzz for FUZZ_SECONDS (60), framing_fuzz a third of it
#   make python build the Python package into $(BUILD)/python (its tests run with make test)

BUILD      ?= build
ASAN_BUILD ?= build-asan
BENCH_BUILD ?= build-bench
FUZZ_BUILD ?= build-fuzz
FUZZ_SECONDS ?= 60
JOBS       ?= $(shell nproc 2>/dev/null || echo 2)
CMAKE_GEN  := -G Ninja

.PHONY: all deps build demo test test-plain test-asan bench fuzz install clean python

all: build

deps:
	@scripts/install-deps.sh

$(BUILD)/build.ninja: | deps
	cmake -S . -B $(BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=Release

build: deps $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

demo: build
	$(BUILD)/tools/kovrel/kovrel info
	$(BUILD)/tools/kovrel/kovrel decode --items | head -n 40
	$(BUILD)/tools/kovrel/kovrel decode --stats -o $(BUILD)/sample-decode.txt
	@echo "every record of the sample: $(BUILD)/sample-decode.txt"

python: deps $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS) --target kovrel_python

test-plain: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

test-asan: deps
	cmake -S . -B $(ASAN_BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=Debug -DKOVREL_SANITIZE=ON -DKOVREL_BUILD_TOOLS=OFF
	cmake --build $(ASAN_BUILD) -j $(JOBS)
	cd $(ASAN_BUILD) && ASAN_OPTIONS=detect_leaks=0:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	  ctest --output-on-failure -j $(JOBS)

test: test-plain test-asan fuzz
	@echo "all test stages passed"

bench: deps
	cmake -S . -B $(BENCH_BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=Release -DKOVREL_BUILD_BENCH=ON -DKOVREL_BUILD_TESTS=OFF -DKOVREL_BUILD_TOOLS=ON
	cmake --build $(BENCH_BUILD) -j $(JOBS)
	$(BENCH_BUILD)/bench/kovrel_bench
	bench/tool_bench.sh $(BENCH_BUILD)
	bench/live_bench.sh $(BENCH_BUILD)
	/usr/bin/python3 bench/python_bench.py $(BENCH_BUILD)

fuzz: deps
	cmake -S . -B $(FUZZ_BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
	  -DKOVREL_BUILD_FUZZ=ON -DKOVREL_BUILD_TESTS=OFF -DKOVREL_BUILD_TOOLS=OFF
	cmake --build $(FUZZ_BUILD) -j $(JOBS)
	mkdir -p $(FUZZ_BUILD)/corpus
	$(FUZZ_BUILD)/fuzz/decode_fuzz -max_total_time=$(FUZZ_SECONDS) -max_len=2048 -print_final_stats=1 \
	  $(FUZZ_BUILD)/corpus fuzz/seeds
	mkdir -p $(FUZZ_BUILD)/corpus_framing
	$(FUZZ_BUILD)/fuzz/framing_fuzz -max_total_time=$$(( $(FUZZ_SECONDS) / 3 + 1 )) -max_len=4096 -print_final_stats=1 \
	  $(FUZZ_BUILD)/corpus_framing fuzz/seeds_framing

install: build
	cmake --install $(BUILD)

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(BENCH_BUILD) $(FUZZ_BUILD)
