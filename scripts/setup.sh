# Sourced by ./run and ./test: installs what is missing on a Debian 12 machine. Needs apt-get; sudo when not root.

# What building and running the program needs.
QUORIX_RUN_PACKAGES="g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-multimedia-dev libgl-dev libpng-dev
  zlib1g-dev libgif-dev libedit-dev mimetex fonts-roboto-unhinted fonts-dejavu-core"
# What the tests and checks need besides.
QUORIX_TEST_PACKAGES="libgtest-dev libgmock-dev libbenchmark-dev libmpfr-dev libgmp-dev libmpc-dev libeigen3-dev
  libmuparser-dev clang clang-format libclang-rt-14-dev"

# install_packages NAME...: installs the packages that are not there yet; quiet when nothing is missing.
install_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Not root and no sudo: please install ${missing[*]}" >&2; return 1; }
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
