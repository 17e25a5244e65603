#!/usr/bin/env bash
# The menu entry passes desktop-file-validate, and every file type it claims is
# one that zolt.xml defines.
set -euo pipefail
packaging=$1
fail() { echo "FAIL: $*" >&2; exit 1; }

report=$(desktop-file-validate "$packaging/zolt.desktop" 2>&1) || fail "$report"
[ -z "$report" ] || fail "desktop-file-validate: $report"
types=$(sed -n 's/^MimeType=//p' "$packaging/zolt.desktop" | tr ';' '\n' | sed '/^$/d')
[ -n "$types" ] || fail "the entry claims no file types"
for type in $types; do
    grep -q "<mime-type type=\"$type\">" "$packaging/zolt.xml" || fail "$type is not defined in zolt.xml"
done
