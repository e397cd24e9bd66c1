#!/bin/bash
# What bash completes is what the programs take.
#   completion_test.sh SOURCE_FOLDER QARN_CONSOLE QARN_HELP
set -euo pipefail
completions=$1/packaging/completions pages=$1/help/scenarios console=$2 viewer=$3
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
mkdir "$folder/games"
touch "$folder/a game.tgf" "$folder/Help.chm" "$folder/notes.txt"

# completed PROGRAM WORD...: what the last word can become, each on a line, sorted.
completed() {
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
    "_${1/-/_}" "$1" "${!#}" "${@: -2:1}"
    printf '%s\n' "${COMPREPLY[@]}" | LC_ALL=C sort
}
# offers EXPECTED PROGRAM WORD...
offers() {
    local expected=$1 offered
    shift
    offered=$(cd "$folder" && completed "$@")
    [[ $offered == "$expected" ]] ||
        { printf '%s offers\n%s\nin place of\n%s\n' "$*" "$offered" "$expected" >&2; exit 1; }
}
options() { grep -Eo -- '--[a-z-]+' | LC_ALL=C sort -u; }

# shellcheck source=/dev/null
source "$completions/qarn-console"
offers "$({ "$console" --usage 2>&1 || true; } | sed 1d | options)" qarn-console --
opponents=$({ "$console" --match nobody nobody 2>&1 || true; } | sed -n 's/.*There are: \(.*\)\./\1/p')
for words in '' 'classic'; do
    offers "$(tr -d ' ' <<<"$opponents" | tr , '\n' | sort)" qarn-console --match $words ''
done
offers "$( (cd "$pages" && ls -- *.htm) | sed 's/\.htm//; s/^page$/all/' | LC_ALL=C sort)" \
    qarn-console --selfplay 1 --scenario ''
offers "" qarn-console --seed ''
offers $'a game.tgf\ngames' qarn-console --json ''

# shellcheck source=/dev/null
source "$completions/qarn-help"
offers "$("$viewer" --help | options)" qarn-help --
offers $'Help.chm\ngames' qarn-help ''
offers "" qarn-help Help.chm ''
