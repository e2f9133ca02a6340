# Shared by the scripts at the top: packages, builds, Wine. To be sourced from the repo's root.

repository=$PWD

# Undefined behaviour ends a sanitized program by an illegal instruction: shown with its stack.
export ASAN_OPTIONS=handle_sigill=1${ASAN_OPTIONS:+:$ASAN_OPTIONS}

say() { printf "== %s\n" "$*"; }

# The packages of each part of the work, by name in Debian 12.
packages_of() {
  local base="g++ cmake ninja-build make" clang="clang-14 libclang-rt-14-dev lld-14"
  case $1 in
    native) echo "$base $clang googletest nlohmann-json3-dev libcli11-dev libtinygltf-dev binutils locales git" ;;
    windows) echo "$base googletest nlohmann-json3-dev libcli11-dev libtinygltf-dev g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64
      wine wine64 xvfb xauth locales fonts-ipafont-gothic fonts-vlgothic libgl1-mesa-dri libstb-dev clang-14 lld-14" ;;
    fuzz) echo "$base $clang" ;;
    lint) echo "$base $clang googletest nlohmann-json3-dev libcli11-dev libtinygltf-dev clang-format-14 clang-tidy-14 git" ;;
    bench) echo "$base libbenchmark-dev libassimp-dev libcli11-dev nlohmann-json3-dev libtinygltf-dev valgrind" ;;
    demo) echo "$base libcli11-dev nlohmann-json3-dev libtinygltf-dev locales" ;;
    coverage) echo "$(packages_of native) gcovr" ;;
    package) echo "$(packages_of windows) pandoc python3 unzip libarchive-tools git" ;;
  esac
}

# Installs what is missing for these parts, all at once; says nothing and touches nothing when all is there.
need_packages() {
  local part wanted=() installed missing=() package
  for part in "$@"; do read -ra wanted -d '' <<<"${wanted[*]} $(packages_of "$part")" || true; done
  # It fails for packages that it never heard of; they are missing like others.
  installed=$({ dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null || true; } | sed -n 's/^installed //p')
  for package in "${wanted[@]}"; do
    [[ $'\n'$installed$'\n' == *$'\n'$package$'\n'* || " ${missing[*]} " == *" $package "* ]] || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  say "installing: ${missing[*]}"
  if [ "$(id -u)" != 0 ]; then
    echo "install these packages first (as root): ${missing[*]}" >&2
    exit 2
  fi
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq -o Acquire::Languages=none >/dev/null
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Whether a preset was configured as it stands now.
is_configured() { [ "build/$1/build.ninja" -nt CMakePresets.json ]; }

# Configures a preset. From the beginning where the presets are newer: a folder that was made for another compiler would forget the
# preset's other values, the sanitizers among them, without a word.
configure() {
  local preset=$1 fresh=()
  is_configured "$preset" || fresh=(--fresh)
  cmake "${fresh[@]}" --preset "$preset" >/dev/null
}

# Configures and builds a preset, with a progress line now and then.
build() {
  local preset=$1
  shift
  say "building $preset"
  is_configured "$preset" || configure "$preset"
  NINJA_STATUS='[%f/%t] ' cmake --build --preset "$preset" "$@" | awk '
    /^\[[0-9]+\/[0-9]+\]/ { n++; last = $0; if (n % 25 == 0) { print $1 " " $2 " " $3 " " $NF; fflush() } next }
    { print; fflush() }'
}

# Wine of its own: a prefix in the build folder, no words on the terminal, and a Japanese system code page, so that narrow
# paths and commands can hold Japanese names as they can for the riggers who use them. Programs that run side by side have one each,
# by $WINE_SLOT (0, 1, ...): no server, no desktop and no focus is shared.
wine_environment() {
  local slot=${WINE_SLOT:-0}
  export WINEPREFIX=$repository/build/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
  [ "$slot" = 0 ] || WINEPREFIX+=-$slot
}

# A screen of its own, whose number is looked for from a place of its own: two searches at one time find the same.
on_a_screen() { xvfb-run -a -n $((99 + 50 * ${WINE_SLOT:-0})) "$@"; }

start_wine() {
  wine_environment
  if ! locale -a 2>/dev/null | grep -qi '^ja_JP.utf'; then
    say "making the locale ja_JP.UTF-8"
    localedef -i ja_JP -f UTF-8 ja_JP.UTF-8
  fi
  # What comes after the first is a copy of it. The system's files are only linked: Wine writes what it changes as new files.
  if [ ! -f "$WINEPREFIX/.ready" ] && [ "${WINE_SLOT:-0}" != 0 ]; then
    (WINE_SLOT=0 && start_wine && wineserver -w)
    rm -rf "$WINEPREFIX"
    cp -al "$repository/build/wine" "$WINEPREFIX"
  fi
  if [ ! -f "$WINEPREFIX/.ready" ]; then
    say "making a Wine prefix"
    mkdir -p "$WINEPREFIX"
    LC_ALL=ja_JP.UTF-8 on_a_screen wineboot -i >/dev/null 2>&1 || true
    LC_ALL=ja_JP.UTF-8 wineserver -w || true
    touch "$WINEPREFIX/.ready"
  fi
  # No window manager answers there: without this, Wine waits two seconds for one whenever a window goes.
  if [ ! -f "$WINEPREFIX/.unmanaged" ]; then
    on_a_screen wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1 || true
    touch "$WINEPREFIX/.unmanaged"
  fi
}

# One program, with a limit: a program that hangs there would hold everything up.
wine_run() {
  wine_environment
  LC_ALL=ja_JP.UTF-8 timeout --kill-after=10 "${WINE_SECONDS:-300}" xvfb-run -a -n $((99 + 50 * ${WINE_SLOT:-0})) wine "$@" \
    2> >(grep -av '^X connection to' >&2)
}
