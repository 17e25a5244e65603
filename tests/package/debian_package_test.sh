#!/usr/bin/env bash
# scripts/package.sh makes the Debian package from the built tree: its control
# data names the Qt 6, libzip and yaml-cpp runtime, its files are in their Debian places,
# and the programs it holds run.
set -euo pipefail
source=$1 build=$2
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

deb=$(bash "$source/scripts/package.sh" "$build" "$root/out" | tail -n 1)
[ -f "$deb" ] || fail "package.sh made no package (it said: $deb)"
case $(basename "$deb") in zolt_6.0.0_*.deb) ;; *) fail "unexpected name $(basename "$deb")" ;; esac

info=$(dpkg-deb -I "$deb")
field() { sed -n "s/^ $1: //p" <<<"$info"; }
[ "$(field Package)" = zolt ] || fail "Package: $(field Package)"
[ "$(field Section)" = electronics ] || fail "Section: $(field Section)"
depends=$(field Depends)
for needed in libqt6widgets6 libqt6printsupport6 libqt6serialport6 libqt6network6 libzip4 libyaml-cpp0.7 \
              hicolor-icon-theme libstdc++6; do
    grep -q "\b$needed\b" <<<"$depends" || fail "Depends lacks $needed: $depends"
done

files=$(dpkg-deb -c "$deb" | awk '{print $6}')
for f in ./usr/bin/zolt ./usr/bin/zolt-cli ./usr/bin/zolt-analyzer ./usr/share/zolt/ZOLT.DEV \
         ./usr/share/zolt/help/index.html ./usr/share/applications/zolt.desktop \
         ./usr/share/mime/packages/zolt.xml ./usr/share/icons/hicolor/256x256/apps/zolt.png \
         ./usr/share/man/man1/zolt-cli.1 ./usr/share/bash-completion/completions/zolt-cli \
         ./usr/share/doc/zolt/examples/harness.zlf; do
    grep -qx -- "$f" <<<"$files" || fail "the package lacks $f"
done
! grep -q '^\./usr/include\|\.a$\|_tests$' <<<"$files" || fail "the package holds build leftovers"

dpkg-deb -x "$deb" "$root/system"
cd "$root"
"$root/system/usr/bin/zolt-cli" dump "$root/system/usr/share/doc/zolt/examples/family.grv" \
    >/dev/null || fail "the packaged zolt-cli cannot read the packaged example"
