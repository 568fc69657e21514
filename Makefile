# The two commands: `make run` and `make test`. Both install what is
# missing (Debian packages, through apt-get), build, and go on.
PACKAGES := cmake make g++ qt6-base-dev libgtest-dev xvfb xauth fonts-dejavu-core poppler-utils \
	libqt6sql6-sqlite libpff-dev libbfio-dev
BUILD := build
JOBS := $(shell nproc 2>/dev/null || echo 2)
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)

.PHONY: all deps configure build run test bench clean

all: build

deps:
	@missing=""; \
	for p in $(PACKAGES); do \
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

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

bench: build
	$(BUILD)/bench/store_bench
	QT_QPA_PLATFORM=offscreen $(BUILD)/bench/list_bench
	$(BUILD)/bench/find_export_bench
	QT_QPA_PLATFORM=offscreen $(BUILD)/bench/batch_bench
	QT_QPA_PLATFORM=offscreen $(BUILD)/bench/import_bench

clean:
	rm -rf $(BUILD)
