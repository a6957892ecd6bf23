# The projects of tests/consumers, each built in a folder of its own below the one given, and run.
# To be sourced after common.sh, from bash.

consumer_expected="postmix_gain 7, orb_input_gain[1] -2; postmix.orb_input_gain[2..5]: partial: \
2 values for 6, the struct keeps what it had [list-short]"

# run_consumer PROGRAM
run_consumer() {
  local line
  line=$("$1")
  echo "$line"
  if [ "$line" != "$consumer_expected" ]; then
    echo "consumer: expected: $consumer_expected" >&2
    return 1
  fi
}

# A consumer sees a copy of itself alone, so that no relative path leads it into this tree.
copy_consumers() {
  rm -rf -- "$1/consumers"
  cp -r tests/consumers "$1/consumers"
}

# cmake_consumer NAME FOLDER [CMAKE-OPTION...]
cmake_consumer() {
  local name=$1 folder=$2/consumers/$1
  say "A project that takes the libraries in by $name"
  copy_consumers "$2"
  shift 2
  cmake -S "$folder" -B "$folder/build" -G Ninja -D CMAKE_BUILD_TYPE=Release "$@" >/dev/null
  cmake --build "$folder/build" -- --quiet
  run_consumer "$folder/build/consumer"
}

consumer_find_package() { cmake_consumer find_package "$1"; }

consumer_pkg_config() {
  say "A project that takes the libraries in by pkg-config"
  copy_consumers "$1"
  make --silent -C "$1/consumers/pkg_config"
  run_consumer "$1/consumers/pkg_config/consumer"
}

# The project that README shows, as it stands there: its program, its CMakeLists.txt and its line for
# pkg-config.
consumer_of_readme() {
  local library
  say "The project that README shows"
  rm -rf -- "$1/readme"
  mkdir "$1/readme"
  awk -v folder="$1/readme" -f tests/docs/blocks.awk README.md
  (
    cd "$1/readme"
    cmake -S . -B build -G Ninja >/dev/null
    cmake --build build -- --quiet
    sh -eu pkg-config.sh
    for library in build/libhal.so libhal.so; do
      ldd -r "$library" 2>&1 | tee links | grep 'libzorcs-check[.]so.*=> /'
      if grep -e 'not found' -e undefined links; then exit 1; fi
    done
  )
}

# Builds the libraries anew, from a copy of what stands in the tree under version control.
consumer_add_subdirectory() {
  mkdir "$1/source"
  git ls-files -z --cached --others --exclude-standard -- . ':!tests' \
    | xargs -0 cp --parents --target-directory "$1/source"
  (
    # Not those of an installation.
    unset CMAKE_PREFIX_PATH PKG_CONFIG_PATH LD_LIBRARY_PATH
    cmake_consumer add_subdirectory "$1" -D "ZORCS_SOURCE_DIR=$1/source"
  )
}
