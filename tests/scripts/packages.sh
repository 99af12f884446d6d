#!/usr/bin/env bash
# Unpacks the two Debian packages into a fresh directory, and builds and runs a C program against what they hold, with CMake and
# with pkg-config; then lets dpkg install and remove them there.
#   packages.sh DIRECTORY_OF_PACKAGES SOURCE_DIR
set -euo pipefail
packages=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

runtime=$(find "$packages" -name 'libpxlimx-5.3_*.deb')
development=$(find "$packages" -name 'libpxlimx-dev_*.deb')
release=$(sed -n 's/^#define PXL_VERSION_[A-Z]* //p' "$source/include/pxli.h" | paste -sd.)
field() { dpkg-deb -f "$1" "$2"; }
[ "$(field "$runtime" Version)" = "$release" ]
[[ $(field "$runtime" Depends) =~ libc6.*libgomp1 ]]
[ "$(field "$development" Depends)" = "libpxlimx-5.3 (= $release)" ]

# Programs need nothing of the development package when they run, and both together are what an installation has.
dpkg-deb -x "$development" "$work/root"
[ -z "$(find "$work/root" -name '*.so*')" ]
dpkg-deb -x "$runtime" "$work/root"
dpkg-deb -x "$runtime" "$work/runtime"
cmp "$source/LICENSE" "$work/runtime/usr/share/doc/pxlimx/LICENSE"
[ -z "$(nm "$work/runtime/usr/lib/libpxlimx-5.3.so" 2>/dev/null)" ] # no symbols but those of the dynamic linker

cmake -G Ninja -S "$source/tests/consumer" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$work/root/usr" >/dev/null
cmake --build "$work/cmake" >/dev/null
mkdir "$work/pkg-config"
export PKG_CONFIG_LIBDIR=$work/root/usr/lib/pkgconfig
# shellcheck disable=SC2046
cc -std=c99 -Wall -Wextra -Werror "$source/tests/consumer/consumer.c" $(pkg-config --cflags --libs pxlimx) \
    -o "$work/pkg-config/consumer"
for way in cmake pkg-config; do
    LD_LIBRARY_PATH=$work/runtime/usr/lib "$work/$way/consumer"
done

# As dpkg sees them: no file belongs to both. They are unpacked only, since a fresh directory has nothing to run their scripts with.
installed=$work/installed
mkdir -p "$installed/var/lib/dpkg"/{info,updates,triggers}
touch "$installed/var/lib/dpkg/status"
dpkg --root="$installed" --force-not-root --force-bad-path --log=/dev/null --unpack "$runtime" "$development" >"$work/log" 2>&1 ||
    { cat "$work/log" && exit 1; }
for package in libpxlimx-5.3 libpxlimx-dev; do
    [ "$(dpkg-query --admindir="$installed/var/lib/dpkg" -W -f='${db:Status-Status}' $package)" = unpacked ]
done
diff -r "$work/root" "$installed" --exclude=var
