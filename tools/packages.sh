# Debian packages, by purpose; sourced by ./run and ./test. docs/dependencies.md says why each one is here.

build_packages=(
  g++ cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-base-private-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
  libexpected-dev libglib2.0-dev
  libxcb1-dev libxcb-xfixes0-dev libxcb-xinput-dev libxcb-shape0-dev libxcb-xtest0-dev
  libwayland-dev
  nlohmann-json3-dev libheif-dev libcanberra-dev libdeflate-dev libturbojpeg0-dev libexif-dev libssl-dev libsodium-dev qt6-multimedia-dev
  libtesseract-dev libleptonica-dev
  libgtest-dev libgmock-dev libbenchmark-dev openssl
)

# What the program uses when it runs: image formats, its typeface, gsettings' storage, the language it reads in pictures.
run_packages=(qt6-image-formats-plugins qt6-translations-l10n qt6-wayland fonts-inter dconf-gsettings-backend tesseract-ocr-eng)

# A private desktop to run on, and real tools to take captures with and to drive it.
desktop_packages=(
  xvfb xserver-xorg-core xserver-xorg-video-dummy openbox picom at-spi2-core dbus dbus-daemon
  xdotool x11-utils x11-xserver-utils sway wl-clipboard grim xclip xsettingsd faketime hsetroot
  scrot imagemagick gnome-screenshot mate-utils xfce4-screenshooter flameshot ksnip pcmanfm-qt libglib2.0-bin procps fontconfig
)

# What the fuzzers are built with.
fuzz_packages=(clang-16 libclang-rt-16-dev llvm-16)

# What tells which lines the tests reach.
coverage_packages=(gcovr)

# What the program is run under to find what it does wrong with its memory.
valgrind_packages=(valgrind libc6-dbg)

# What other programs are measured against.
bench_packages=(libgdk-pixbuf2.0-bin ffmpegthumbnailer libopencv-imgproc-dev tesseract-ocr tesseract-ocr-deu
  tesseract-ocr-rus fonts-liberation fonts-cantarell)

# What builds the package for Debian.
package_packages=(dpkg-dev fakeroot file gzip)

# What an installation is looked at with: its metadata, its page of the manual, its completions.
check_packages=(desktop-file-utils appstream man-db zsh fish bash-completion)

# Installs those of the named packages that are missing, with sudo where needed.
install_missing() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ "${#missing[@]}" -eq 0 ] && return
  echo "Installing ${missing[*]}"
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Missing packages, and neither root nor sudo: ${missing[*]}" >&2; return 1; }
    root=(sudo)
  fi
  "${root[@]}" apt-get update -qq
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
