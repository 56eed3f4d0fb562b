# The short commands. Everything real is in CMakePresets.json, and scripts/setup brings what the machine lacks.
.POSIX:
.PHONY: help check run test coverage analyze everywhere bench fuzz faults storms kills soak music film package \
	test-package test-windows install clean format

PREFIX = /usr/local
FUZZ_SECONDS = 600
EVENTS = 10000000
COUNT = 2000
SECONDS = 3600
MAIN_BRANCH = main
MACHINES =
# A job is a quarter of a core: most tests in the window wait most of the time (cmake/Tests.cmake).
CTEST = ctest -j $$(( $$(getconf _NPROCESSORS_ONLN) * 4 ))
# What measures the game wants a core for itself.
CTEST_ALONE = ctest -j $$(getconf _NPROCESSORS_ONLN)

help:
	@echo 'make check    the daily loop: build the game, run all tests outside the window, lint what is new on this branch'
	@echo 'make run      set up what is missing, build the game and play it (without a display: a short tour of it)'
	@echo 'make test     set up what is missing and run everything: the game in its window, its rooms under sanitizers'
	@echo 'make coverage  run the tests of the rooms and tell which lines and branches they reach, and which lines not'
	@echo 'make analyze  let every checker look: cppcheck, GCC, clang-tidy, valgrind, ThreadSanitizer'
	@echo 'make bench    measure drawing, stepping, saving and reading, and the start, memory and pace of the real program'
	@echo 'make fuzz     feed damaged files to each fuzz target for FUZZ_SECONDS ($(FUZZ_SECONDS))'
	@echo 'make faults   let one library call fail in each session of the game: every rare one, 22 of those of each frame'
	@echo 'make storms   drive the sanitized game through random events of every kind, EVENTS of them ($(EVENTS))'
	@echo 'make kills    kill the game COUNT times ($(COUNT)) at random moments and see what the next start finds'
	@echo 'make soak     play the game for SECONDS ($(SECONDS)) and plot its memory, handles, log and frames'
	@echo 'make music    play the scores of tools/music into Music/ (the results are kept in the repository)'
	@echo 'make film     play the game for half a minute and film it for the README'
	@echo 'make package  make the packages that players install, in build/packages'
	@echo 'make test-package  make them twice, compare them, and play what is in those for Linux'
	@echo 'make test-windows  test the game for Windows under wine: its rooms, and its package, the only one it leaves'
	@echo 'make everywhere  test the rooms as other compilers, processors and Windows have them, or on MACHINES alone'
	@echo 'make install  install the game below PREFIX ($(PREFIX)); DESTDIR is honoured'
	@echo 'make format   lay out the code as .clang-format has it'
	@echo 'make clean    remove build/ (libraries built for this user stay in the cache)'

run:
	@scripts/setup run
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	    cmake --preset play && cmake --build --preset play && build/play/kestrel-volley; \
	else \
	    echo 'There is no display here (neither DISPLAY nor WAYLAND_DISPLAY is set), so nobody could play.' && \
	    echo 'Instead here is a tour of the game: it runs in a virtual display, real keys are pressed, and the' && \
	    echo 'pictures are left in build/tour.' && \
	    cmake --preset play -DKESTREL_BUILD_TOOLS=ON && cmake --build --preset play && \
	    build/play/tools/tour/tour build/play/kestrel-volley build/tour; \
	fi

# Where there is no branch of that name the linter looks at every file that it has not seen.
check:
	@scripts/setup test
	cmake --preset release
	cmake --build --preset release
	$(CTEST) --preset check
	tests/tree/lint build/release --since '$(MAIN_BRANCH)'

test:
	@scripts/setup test
	cmake --preset sanitizers
	cmake --build --preset sanitizers
	cmake --preset release
	cmake --build --preset release --target game_tests
	$(CTEST) --preset sanitizers
	$(CTEST) --preset game
	$(CTEST_ALONE) --preset measured

# Profiles add up, so those of an earlier run go.
coverage:
	@scripts/setup coverage
	cmake --preset coverage
	cmake --build --preset coverage --target rooms_tests
	rm -rf build/coverage/profiles
	$(CTEST) --preset coverage
	@tests/coverage/report build/coverage

analyze:
	@scripts/setup analyze
	cmake --preset release
	cmake --build --preset release --target quillini_tests state_tests sim_tests store_tests text_tests e2e_tests
	cmake --preset threads
	cmake --build --preset threads --target kestrel-volley audio_tests app_tests
	@tests/analyze/run

bench:
	@scripts/setup test
	cmake --preset release
	cmake --build --preset release --target kestrel-bench
	build/release/kestrel-bench --page=docs/BENCH.md

fuzz:
	@scripts/setup test
	cmake --preset sanitizers
	cmake --build --preset sanitizers --target fuzz_targets
	fuzz/run long build/sanitizers/fuzz '$(FUZZ_SECONDS)'

faults:
	@scripts/setup test
	cmake --preset sanitizers
	cmake --build --preset sanitizers --target faults_tests
	KESTREL_FAULTS=all UBSAN_OPTIONS=print_stacktrace=1 build/sanitizers/faults_tests --gtest_brief=1

storms:
	@scripts/setup test
	cmake --preset sanitizers
	cmake --build --preset sanitizers --target storms_tests
	STORM_EVENTS='$(EVENTS)' UBSAN_OPTIONS=print_stacktrace=1 build/sanitizers/storms_tests

kills:
	@scripts/setup test
	cmake --preset release
	cmake --build --preset release --target e2e_tests
	KILLS='$(COUNT)' build/release/tests/e2e/e2e_tests --gtest_filter='Kills.*'

soak:
	@scripts/setup test
	cmake --preset release
	cmake --build --preset release --target e2e_tests
	SOAK_SECONDS='$(SECONDS)' SOAK_PLOT=build/soak.svg build/release/tests/e2e/e2e_tests --gtest_filter='Soak.*'

music:
	@scripts/setup music
	@tools/music/render

film:
	@scripts/setup film
	cmake --preset play -DKESTREL_BUILD_TOOLS=ON
	cmake --build --preset play --target kestrel-volley film
	build/play/tools/tour/film build/play/kestrel-volley build/film
	img2webp -loop 0 -d 80 -lossy -q 55 build/film/*.png -o docs/pictures/play.webp

package:
	@scripts/setup package
	@packaging/package

test-package:
	@scripts/setup package
	@scripts/setup test
	@tests/packaging/test

# Of the packages this leaves the one for Windows.
test-windows:
	@scripts/setup test
	@scripts/setup windows
	cmake --preset windows
	cmake --build --preset windows
	$(CTEST) --preset windows
	@packaging/package zip
	cmake --preset release
	cmake --build --preset release --target e2e_tests
	@tests/windows/test

everywhere:
	@scripts/setup everywhere
	@tests/everywhere/test $(MACHINES)

# The set-up is left alone where it has been done: "sudo make install" shall not build the libraries again for root.
install:
	@test -f build/Dependencies.cmake || scripts/setup run
	cmake --preset play
	cmake --build --preset play
	cmake --install build/play --prefix '$(PREFIX)'

clean:
	rm -rf build

format:
	find . \( -path ./build -o -path ./.git \) -prune -o \( -name '*.cpp' -o -name '*.hpp' \) -print0 | \
	    xargs -0 -r clang-format -i
