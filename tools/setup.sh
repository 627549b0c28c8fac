#!/bin/sh
# SPDX-License-Identifier: LGPL-2.1-or-later
# Installs what the build needs and the system lacks (Debian 12): tools/setup.sh build|test|nightly
# Asks dpkg first, so that nothing is fetched and no network is needed once everything is there.
set -eu

build_packages="g++ cmake ninja-build ccache pkg-config python3-minimal qt6-base-dev qt6-svg-dev
    qt6-image-formats-plugins libgl-dev libopengl-dev libegl-dev libvulkan-dev libqpdf-dev libheif-dev libexif-dev libfontconfig-dev libharfbuzz-dev
    libzip-dev libical-dev liblcms2-dev libjpeg62-turbo-dev libpng-dev zlib1g-dev
    libqt6opengl6-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n
    libhyphen-dev hyphen-bg hyphen-ca hyphen-cs hyphen-da hyphen-de hyphen-el hyphen-en-gb hyphen-en-us hyphen-es
    hyphen-fr hyphen-hr hyphen-hu hyphen-it hyphen-nl hyphen-no hyphen-pl hyphen-pt-pt hyphen-ro hyphen-sk hyphen-sl
    hyphen-sv"
test_packages="python3 python3-dateutil poppler-utils ghostscript procps qpdf libheif-examples libbenchmark-dev clang-format desktop-file-utils appstream mandoc
    shared-mime-info xvfb xauth dpkg-dev lintian dbus dbus-x11 at-spi2-core gir1.2-atspi-2.0 python3-pyatspi
    fonts-noto-color-emoji fonts-lato zsh fish"
nightly_packages="clang clang-tidy libclang-rt-14-dev slurm-wlm parallel openssh-server openssh-client mmdebstrap"

case "${1:-}" in
build) wanted="$build_packages" ;;
test) wanted="$build_packages $test_packages" ;;
nightly) wanted="$build_packages $test_packages $nightly_packages" ;;
*)
    echo "usage: tools/setup.sh build|test|nightly" >&2
    exit 2
    ;;
esac

if ! command -v dpkg-query >/dev/null 2>&1; then
    echo "setup: this is not a Debian system; please install the counterparts of:" $wanted >&2
    exit 0 # the build itself will say what it does not find
fi

missing=""
for package in $wanted; do
    # one line per architecture; a package that is known but not installed answers too
    dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

as_root=""
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null 2>&1; then
        echo "setup: these packages are missing, and neither root nor sudo is at hand to install them:$missing" >&2
        echo "setup: as root, run: apt-get install$missing" >&2
        exit 1
    fi
    as_root="sudo"
fi

echo "setup: installing$missing"
install_missing() {
    # env: sudo drops the variable of its caller
    # shellcheck disable=SC2086 # lists of words on purpose
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing
}
# the package lists may be old or absent; an up-to-date machine saves the update
if ! install_missing >/dev/null 2>&1; then
    $as_root apt-get update -qq
    install_missing
fi
