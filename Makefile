# The two commands: `make run` and `make test`. Both install what is
# missing (Debian packages, through apt-get), build, and go on. `make portable`
# makes the folder for a stick.
PACKAGES := cmake make g++ qt6-base-dev qt6-wayland patchelf libgtest-dev xvfb xauth xdotool \
  fonts-dejavu-core poppler-utils dosfstools fusefat \
  libqt6sql6-sqlite libpff-dev libbfio-dev strace
# `make fuzz` alone needs these: clang and its fuzzer and sanitizer runtimes.
FUZZ_PACKAGES := clang libclang-rt-dev
FUZZ_BUILD := build-fuzz
FUZZ_SECONDS := 60
BUILD := build
JOBS := $(shell nproc 2>/dev/null || echo 2)
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)

.PHONY: all deps configure build run portable test bench fuzz clean

all: build

deps:
	@missing=""; \
	for p in $(PACKAGES) $(EXTRA_PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q "ok installed" || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Installing:$$missing"; \
	  $(SUDO) env DEBIAN_FRONTEND=noninteractive apt-get update -qq && \
	  $(SUDO) env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $$missing; \
	fi

configure: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo

build: configure
	cmake --build $(BUILD) -j $(JOBS)

# Only the program and its libraries: the tests are built by `make test`.
run: configure
	cmake --build $(BUILD) -j $(JOBS) --target tandry
	$(BUILD)/app/tandry

# The folder that runs from a stick on a desktop without Qt: build/portable/Tandry.
portable: configure
	cmake --build $(BUILD) -j $(JOBS) --target portable

# Skipped tests say why in their output; the reasons are shown at the end.
test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS); status=$$?; \
	grep -hE '^(Skipped: |SKIPPED: |SKIP   :)' Testing/Temporary/LastTest.log; exit $$status

# One table: road, size, time, floor, ratio, spread (the header once, from
# the first program); then the files a refill opens and the paint gaps.
bench: build
	@QT_QPA_PLATFORM=offscreen $(BUILD)/bench/roads_bench
	@QT_QPA_PLATFORM=offscreen $(BUILD)/bench/batch_bench --no-header
	@$(BUILD)/bench/find_export_bench --no-header
	@QT_QPA_PLATFORM=offscreen $(BUILD)/bench/import_bench --no-header
	@sh tests/fat/on_fat_image.sh $(BUILD)/bench/durable_bench --no-header || [ $$? = 77 ]
	@QT_QPA_PLATFORM=offscreen $(BUILD)/bench/roads_bench slow-drive --no-header
	@QT_QPA_PLATFORM=offscreen $(BUILD)/bench/roads_bench paint-gaps

# Each fuzz target for FUZZ_SECONDS (make fuzz FUZZ_SECONDS=600), from its
# seed corpus in tests/fuzz/corpus/<target>/; new inputs gather in
# $(FUZZ_BUILD)/corpus/. A crash stops the run: its input is in
# $(FUZZ_BUILD)/crashes/, to be added to the seed corpus once fixed.
fuzz:
	$(MAKE) deps EXTRA_PACKAGES="$(FUZZ_PACKAGES)"
	cmake -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ -DTANDRY_FUZZ=ON
	cmake --build $(FUZZ_BUILD) -j $(JOBS)
	@mkdir -p $(FUZZ_BUILD)/crashes
	@for t in $(notdir $(wildcard tests/fuzz/corpus/*)); do \
	  mkdir -p $(FUZZ_BUILD)/corpus/$$t; \
	  $(FUZZ_BUILD)/tests/fuzz/fuzz_$$t -max_total_time=$(FUZZ_SECONDS) -artifact_prefix=$(FUZZ_BUILD)/crashes/$$t- \
	    $(FUZZ_BUILD)/corpus/$$t tests/fuzz/corpus/$$t >$(FUZZ_BUILD)/$$t.log 2>&1 || \
	    { tail -n 40 $(FUZZ_BUILD)/$$t.log; echo "fuzz_$$t: a crash; its input is in $(FUZZ_BUILD)/crashes/"; exit 1; }; \
	  echo "fuzz_$$t: $$(grep -o 'Done [0-9]* runs in [0-9]* second' $(FUZZ_BUILD)/$$t.log)"; \
	done

clean:
	rm -rf $(BUILD) $(FUZZ_BUILD)
