# Shared by the scripts at the top: packages, builds, Wine. To be sourced from the repo's root.

say() { printf "== %s\n" "$*"; }

# The packages of each part of the work, by name in Debian 12.
packages_of() {
  local base="g++ cmake ninja-build make"
  case $1 in
    native) echo "$base googletest nlohmann-json3-dev libcli11-dev binutils locales" ;;
    windows) echo "$base googletest nlohmann-json3-dev libcli11-dev g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64
      wine wine64 xvfb xauth locales fonts-ipafont-gothic fonts-vlgothic libgl1-mesa-dri libstb-dev" ;;
    fuzz) echo "$base clang-14 libclang-rt-14-dev" ;;
    lint) echo "$base googletest nlohmann-json3-dev libcli11-dev clang-format-14 clang-tidy-14 git" ;;
    bench) echo "$base libbenchmark-dev libassimp-dev libcli11-dev nlohmann-json3-dev valgrind" ;;
    demo) echo "$base libcli11-dev nlohmann-json3-dev locales" ;;
    coverage) echo "$(packages_of native) gcovr" ;;
    package) echo "$(packages_of windows) pandoc zip unzip git" ;;
  esac
}

# Installs what is missing; says nothing and touches nothing when all is there.
need_packages() {
  local missing=() package
  for package in $(packages_of "$1"); do
    dpkg-query -W -f='${Status}\n' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  say "installing: ${missing[*]}"
  if [ "$(id -u)" != 0 ]; then
    echo "install these packages first (as root): ${missing[*]}" >&2
    exit 2
  fi
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq >/dev/null
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures and builds a preset, with a progress line now and then.
build() {
  local preset=$1
  shift
  say "building $preset"
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
  NINJA_STATUS='[%f/%t] ' cmake --build --preset "$preset" "$@" | awk '
    /^\[[0-9]+\/[0-9]+\]/ { n++; last = $0; if (n % 25 == 0) { print $1 " " $2 " " $3 " " $NF; fflush() } next }
    { print; fflush() }'
}

# Wine of its own: a prefix in the build folder, no words on the terminal, and a Japanese system code page, so that narrow
# paths and commands can hold Japanese names as they can for the riggers who use them.
start_wine() {
  export WINEPREFIX=$PWD/build/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
  if ! locale -a 2>/dev/null | grep -qi '^ja_JP.utf'; then
    say "making the locale ja_JP.UTF-8"
    localedef -i ja_JP -f UTF-8 ja_JP.UTF-8
  fi
  if [ ! -f "$WINEPREFIX/.ready" ]; then
    say "making a Wine prefix"
    mkdir -p "$WINEPREFIX"
    LC_ALL=ja_JP.UTF-8 xvfb-run -a wineboot -i >/dev/null 2>&1 || true
    LC_ALL=ja_JP.UTF-8 wineserver -w || true
    touch "$WINEPREFIX/.ready"
  fi
  # No window manager answers there: without this, Wine waits two seconds for one whenever a window goes.
  if [ ! -f "$WINEPREFIX/.unmanaged" ]; then
    xvfb-run -a wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1 || true
    touch "$WINEPREFIX/.unmanaged"
  fi
}

# One program, with a limit: a program that hangs there would hold everything up.
wine_run() { LC_ALL=ja_JP.UTF-8 timeout --kill-after=10 "${WINE_SECONDS:-300}" xvfb-run -a wine "$@" 2> >(grep -v '^X connection to' >&2); }
