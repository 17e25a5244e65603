#!/usr/bin/env bash
# The bash completion offers exactly the commands zolt-cli --help lists, and
# after a command the files of the kind it reads.
set -uo pipefail
completion=$1 cli=$2
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

# shellcheck source=/dev/null
source "$completion"
complete_line() {
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    COMPREPLY=()
    _zolt_cli
    printf '%s\n' "${COMPREPLY[@]}" | sort
}

offered=$(complete_line zolt-cli "")
listed=$( (echo --version; echo --help; "$cli" --help | sed -n 's/^ *\(usage: \)\{0,1\}zolt-cli \([a-z-]*\).*/\2/p') |
    sed '/^$/d' | sort -u)
[ "$offered" = "$listed" ] || fail "completion offers
$offered
but zolt-cli --help lists
$listed"

cd "$root"
touch a.zlf B.ZLF c.grv d.pid notes.txt
mkdir folder
[ "$(complete_line zolt-cli dump "" | tr '\n' ' ')" = "B.ZLF a.zlf c.grv folder " ] ||
    fail "dump offers $(complete_line zolt-cli dump "" | tr '\n' ' ')"
[ "$(complete_line zolt-cli import-pid "" | tr '\n' ' ')" = "d.pid folder " ] ||
    fail "import-pid offers $(complete_line zolt-cli import-pid "" | tr '\n' ' ')"
[ "$(complete_line zolt-cli report a.zlf --s | tr '\n' ' ')" = "--summary " ] ||
    fail "report options"
