#!/usr/bin/env bash
# Makes the Debian package zolt_<version>_<arch>.deb with CPack and prints its path.
# Usage: package.sh                 installs what is missing, builds the release
#                                   preset, packages it into build/release/package
#        package.sh BUILD [OUT]     packages an already built tree (into BUILD/package)
set -euo pipefail
# Folders given are the caller's, taken before moving to the repository.
given_build=${1:+$(realpath -m "$1")}
given_out=${2:+$(realpath -m "$2")}
cd "$(dirname "$0")/.."

if [ -z "$given_build" ]; then
    build=build/release
    mkdir -p build
    log=build/package.log
    if ! bash scripts/setup.sh >"$log" 2>&1; then
        echo "package: the build failed; the end of $log:" >&2
        tail -n 40 "$log" >&2
        exit 1
    fi
else
    build=$given_build
fi
out=${given_out:-$(realpath -m "$build/package")}
[ -f "$build/CPackConfig.cmake" ] || {
    echo "package: $build is no configured build tree (cmake --preset release)" >&2
    exit 1
}

mkdir -p "$out"
rm -f "$out"/zolt_*.deb
if ! cpack -G DEB --config "$build/CPackConfig.cmake" -B "$out" >"$out/cpack.log" 2>&1; then
    echo "package: cpack failed; the end of $out/cpack.log:" >&2
    tail -n 40 "$out/cpack.log" >&2
    exit 1
fi
# CPack's own working folder is of no use once the package is made.
rm -rf "$out/_CPack_Packages"
ls "$out"/zolt_*.deb
