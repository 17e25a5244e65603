#!/usr/bin/env bash
# Installs the build into a temporary prefix; the installed zolt-cli, run from
# another folder, finds its data under ../share/zolt and compiles the example.
set -euo pipefail
build=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
prefix=$root/prefix
fail() { echo "FAIL: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$prefix" >"$root/install.log" || {
    cat "$root/install.log" >&2
    fail "cmake --install"
}
for f in bin/zolt bin/zolt-cli bin/zolt-analyzer share/zolt/ZOLT.DEV share/zolt/ZOLT.MAC \
         share/zolt/ZOLT.DEF share/zolt/Blank.zlt share/zolt/help/index.html \
         share/applications/zolt.desktop share/mime/packages/zolt.xml \
         share/icons/hicolor/scalable/apps/zolt.svg share/icons/hicolor/48x48/apps/zolt.png \
         share/man/man1/zolt-cli.1 share/man/man1/zolt-analyzer.1 \
         share/bash-completion/completions/zolt-cli share/doc/zolt/examples/harness.zlf; do
    [ -f "$prefix/$f" ] || fail "$f was not installed"
done
[ ! -e "$prefix/bin/ZOLT.DEV" ] || fail "data files were installed beside the programs"

work=$root/elsewhere
mkdir -p "$work"
cd "$work"
"$prefix/bin/zolt-cli" --version | grep -q '^ZOLT 6.0' || fail "zolt-cli --version"
"$prefix/bin/zolt-cli" dump "$prefix/share/doc/zolt/examples/harness.zlf" >dump.json ||
    fail "zolt-cli dump of the installed example"
grep -q '"DOOR_LH"' dump.json || fail "the dump does not show the example's netlists"

# The compile needs the macros of ZOLT.MAC: it only succeeds when the data was found.
cp "$prefix/share/doc/zolt/examples/harness.zlf" .
"$prefix/bin/zolt-cli" compile harness.zlf >compile.txt || {
    cat compile.txt >&2
    fail "the installed zolt-cli did not compile the example"
}
grep -q '^Errors: 0$' compile.txt || fail "the example compiled with errors"
mv "$prefix/share/zolt" "$prefix/share/zolt.away"
if "$prefix/bin/zolt-cli" compile harness.zlf >compile.txt 2>&1; then
    fail "the compile succeeded without the data files: they were not looked up under share/zolt"
fi

# The manual page is the program's --help.
grep -q 'grv\\\?-compile' "$prefix/share/man/man1/zolt-cli.1" || fail "the manual page lacks a command"
echo "installed and ran from $work"
