# The entry to every task. `make help` lists the targets.
.DEFAULT_GOAL := help
.PHONY: $(shell sed -n 's/^\([a-z0-9-]*\):.*\#\# .*/\1/p' Makefile)

BUILD := build/release
WINDOWS_BUILD := build/windows
OWN_CODE = $(shell git ls-files --cached --others --exclude-standard '*.h' '*.c' '*.cpp' ':!grammar/generated')

SECONDS := 60
BENCH := build/bench
FUZZ := build/fuzz
PYTHON_BUILD := build/python/cmake
MILLIONS := 2
TEXTS := 200000
PYTHON := python3

help: ## list these targets
	@sed -n 's/^\([a-z0-9-]*\):.*## /\1\t/p' $(MAKEFILE_LIST) | expand -t 22

setup: ## install the packages that are missing, get the ANTLR runtime
	@tools/install-packages.sh build
	@tools/fetch-antlr-runtime.sh

$(BUILD)/build.ninja: | setup
	@cmake --preset release >/dev/null

build: setup $(BUILD)/build.ninja ## build the libraries and vorn-inspect
	@cmake --build --preset release --target VornLib vorn_c vorn-inspect

release: build ## the same, with the optimisation of packages (-O2)

run: build ## print the answers for the sample queries and filters
	@examples/show-samples.sh $(BUILD)/vorn-inspect

test: setup $(BUILD)/build.ninja ## build everything and run all tests
	@cmake --build --preset release
	@ctest --preset release

soak: bench-build ## make MILLIONS of random calls, print the memory at intervals
	@$(BENCH)/benchmark/vorn-bench soak $(BENCH)/libVornLib.so $(MILLIONS)

large-texts: bench-build ## measure time and memory of large and of ambiguous texts
	@$(BENCH)/benchmark/vorn-bench large-texts $(BENCH)/libVornLib.so

compare: setup $(BUILD)/build.ninja ## compare the parser with the bare pipeline on TEXTS texts
	@cmake --build --preset release --target compare
	@$(BUILD)/tests/compare/compare --texts $(TEXTS) examples/queries examples/filters fuzz/findings

allocations: setup $(BUILD)/build.ninja ## let every allocation of every first call fail (hours)
	@cmake --build --preset release --target VornLib failing_allocations_test
	@VORN_EVERY_ALLOCATION=1 ctest --preset release -R FailingAllocations.InTheFirst --timeout 36000

test-asan: setup ## run the tests under AddressSanitizer and UBSan
	@cmake --preset asan >/dev/null
	@cmake --build --preset asan
	@tools/test-asan.sh

test-tsan: setup ## run the tests of the functions under ThreadSanitizer
	@cmake --preset tsan >/dev/null
	@cmake --build --preset tsan
	@ctest --preset tsan

coverage: setup ## fail if tests run less than 95 % of our lines; HTML in build/coverage/report
	@tools/install-packages.sh coverage
	@cmake --preset coverage >/dev/null
	@cmake --build --preset coverage
	@tools/measure-coverage.sh

check-embedding: setup ## build hosts with the library inside their build, shared and static
	@tests/packaging/embedded_test.py

windows: ## cross-build library, programs and tests for 64-bit Windows
	@tools/install-packages.sh windows
	@tools/fetch-antlr-runtime.sh
	@tools/fetch-cross-sources.sh
	@test -f $(WINDOWS_BUILD)/build.ninja || cmake --preset windows >/dev/null
	@cmake --build --preset windows

windows-test: build windows ## run all tests for 64-bit Windows under Wine
	@cmake --build --preset release --target c_host
	@tools/test-under-wine.sh

arm64: ## cross-build library, programs and tests for Linux on 64-bit ARM
	@tools/install-packages.sh arm64
	@tools/fetch-antlr-runtime.sh
	@tools/fetch-cross-sources.sh
	@test -f build/arm64/build.ninja || cmake --preset arm64 >/dev/null
	@cmake --build --preset arm64

arm64-test: arm64 ## run the tests for 64-bit ARM in an emulator
	@ctest --preset arm64

$(FUZZ)/build.ninja: | setup
	@tools/install-packages.sh fuzz
	@cmake --preset fuzz >/dev/null

fuzz: setup $(FUZZ)/build.ninja ## run each fuzzer for SECONDS=60
	@cmake --build --preset fuzz --target vorn_fuzzers
	@tools/fuzz.sh $(FUZZ) $(SECONDS)

python: build ## build the Python package for PYTHON=python3 as a wheel, test it
	@tools/install-packages.sh python
	@tools/build-wheel.sh $(PYTHON)
	@tools/test-python.sh $(PYTHON)

package-windows: windows-test ## test the build for Windows and make a zip of it
	@tools/package-windows.sh

$(BENCH)/build.ninja: | setup
	@tools/install-packages.sh bench
	@cmake --preset bench >/dev/null

bench-build: setup $(BENCH)/build.ninja ## build the library and the programs that measure it
	@cmake --build --preset bench

bench: bench-build ## print the times of all functions beside the bare pipeline
	@benchmark/report/measure.py $(BENCH)
	@benchmark/report/times.py $(BENCH)

bench-report: bench-build ## measure everything and write docs/performance.md
	@benchmark/report/measure.py --all $(BENCH)
	@benchmark/report/report.py $(BENCH)

check-instructions: bench-build ## fail if a function executes more than it should
	@benchmark/instructions/check_instructions.py $(BENCH)

grammar: ## write grammar/generated/ anew from grammar/Cypher.g4
	@tools/install-packages.sh grammar
	@tools/fetch-antlr-tool.sh
	@grammar/unicode_sets.py
	@tools/generate-recognisers.sh

check-grammar: ## fail if grammar/generated/ is not what grammar/Cypher.g4 gives
	@tools/install-packages.sh grammar
	@tools/fetch-antlr-tool.sh
	@grammar/unicode_sets.py --check
	@tools/generate-recognisers.sh --check

docs: ## draw the diagrams of docs/language.md anew, render the header in build/docs
	@tools/install-packages.sh docs
	@docs/draw_rules.py
	@tools/render-header.sh

check-docs: ## fail if a diagram is out of date or the header is not fully documented
	@tools/install-packages.sh docs
	@docs/draw_rules.py --check
	@tools/render-header.sh

check-recipes: setup ## follow docs/recipes.md in a copy of the sources
	@tools/install-packages.sh grammar
	@tools/install-packages.sh docs
	@tools/fetch-antlr-tool.sh
	@PYTHONDONTWRITEBYTECODE=1 tests/documents/documents_test.py . $(BUILD) c++ --recipes

check-other-runtimes: setup ## build with an installed ANTLR runtime, compare what newer tools generate
	@tools/install-packages.sh grammar
	@tools/check-other-runtimes.sh

check-abi: setup $(BUILD)/build.ninja ## fail if hosts built with this version would meet another ABI
	@tools/install-packages.sh abi
	@cmake --build --preset release --target vorn_abi vorn_c_abi
	@tools/check-abi.sh $(BUILD)

announce-abi: setup $(BUILD)/build.ninja ## take the ABI of now for the announced one
	@tools/install-packages.sh abi
	@cmake --build --preset release --target vorn_abi vorn_c_abi
	@tools/check-abi.sh $(BUILD) --write

package-deb: setup ## build Debian packages in build/packages, use them in a new system
	@tools/install-packages.sh debian
	@tools/package-deb.sh
	@tests/packaging/debian_packages_test.py

$(PYTHON_BUILD)/build.ninja: | setup
	@tools/install-packages.sh python
	@tools/build-wheel.sh $(PYTHON) >/dev/null

lint: setup $(BUILD)/build.ninja $(BENCH)/build.ninja $(FUZZ)/build.ninja $(PYTHON_BUILD)/build.ninja ## check the format and run clang-tidy
	@tools/install-packages.sh lint
	@test -n '$(OWN_CODE)' || { echo 'lint: git lists no sources.' >&2; exit 1; }
	@clang-format --dry-run --Werror $(OWN_CODE)
	@tools/run-clang-tidy.sh '$(BUILD) $(BENCH) $(FUZZ) $(PYTHON_BUILD)' $(filter %.cpp,$(OWN_CODE))

format: ## bring the sources into format
	@tools/install-packages.sh lint
	@clang-format -i $(OWN_CODE)

clean: ## remove everything that was built, but not what was downloaded
	@find build -mindepth 1 -maxdepth 1 ! -name 'antlr*' ! -name 'sources' -exec rm -rf {} +
