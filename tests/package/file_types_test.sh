#!/usr/bin/env bash
# zolt.xml is valid shared-mime-info: update-mime-database builds a database
# from it in which each extension, in either case, names its ZOLT type.
set -euo pipefail
packaging=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

xmllint --noout "$packaging/zolt.xml" || fail "zolt.xml is not well-formed"
mkdir -p "$root/mime/packages"
cp "$packaging/zolt.xml" "$root/mime/packages/"
report=$(XDG_DATA_DIRS=$root update-mime-database "$root/mime" 2>&1) || fail "$report"
[ -z "$report" ] || fail "update-mime-database: $report"

while read -r extension type; do
    grep -q ":$type:\*\.$extension\(:\|$\)" "$root/mime/globs2" || fail "*.$extension is not $type"
    grep -q "^$type\$" "$root/mime/types" || fail "$type is missing from the database"
done <<'TYPES'
zlf application/x-zolt-program
zlt application/x-zolt-template
grv application/x-zolt-family
zos application/x-zolt-legacy-archive
pid application/x-zolt-pid
TYPES
# Globs without case-sensitive="true" match upper-case names too (no ",cs" flag).
! grep -q 'x-zolt.*:cs' "$root/mime/globs2" || fail "a ZOLT glob is case-sensitive"
