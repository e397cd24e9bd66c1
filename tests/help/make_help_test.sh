#!/bin/sh
# The help is the same from build to build, and faults in the pages fail the build.
#   make_help_test.sh MAKE_HELP PAGES MATCHES CHMCMD HELP_FILE
set -eu
makeHelp=$1
pages=$2
matches=$3
chmcmd=$4
helpFile=$5

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

build() {
    "$makeHelp" "$folder/pages" "$folder/matches" "$folder/work" "$chmcmd" "$folder/Help.chm" 2>"$folder/errors"
}

# freshPages: the pages and records as they are, to be spoilt.
freshPages() {
    rm -rf "$folder/pages" "$folder/matches" "$folder/Help.chm"
    cp -r "$pages" "$folder/pages"
    cp -r "$matches" "$folder/matches"
}

# mustFail WHAT COMMAND WORDS...: where the command has spoilt the pages or records, the build fails,
# says so in all of these words, and leaves no file.
mustFail() {
    what=$1
    freshPages
    (cd "$folder" && eval "$2")
    shift 2
    if build; then
        echo "$what does not fail the build" >&2
        exit 1
    fi
    for words in "$@"; do
        if ! grep -q "$words" "$folder/errors" || [ -e "$folder/Help.chm" ]; then
            echo "$what:" >&2
            cat "$folder/errors" >&2
            exit 1
        fi
    done
}

freshPages
# A time that the file holds would now be another.
while [ "$(date +%s)" -le "$(stat -c %Y "$helpFile")" ]; do sleep 0.1; done
build
cmp "$folder/Help.chm" "$helpFile"

mustFail 'a missing page' 'rm pages/Movement.htm' 'Movement.htm'
mustFail 'a missing picture or anchor' \
    'rm pages/pictures/odds.png; sed -i s/htm#Remove/htm#Nowhere/ pages/Games.htm' 'odds.png' 'Nowhere'
mustFail 'an unknown mark' 'sed -i "s/{{odds}}/{{odd}}/" pages/Combat.htm' \
    'Combat.htm: nothing fills {{odd}}'
mustFail 'a menu item that no page tells of' 'sed -i "/{{menu:mnuSave}}/d" pages/Keys.htm' 'mnuSave'
mustFail 'a scenario without notes' 'rm pages/scenarios/HM.htm' 'HM.htm'
mustFail 'a missing record' 'rm matches/captain-scout.json' 'captain-scout.json: can not be read'
mustFail 'a damaged record' 'echo "{" >matches/captain-captain.json' 'captain-captain.json: '
mustFail 'a record without a scenario' 'sed -i s/:.DW./:\"DX\"/ matches/captain-captain.json' \
    'captain-captain.json: no games of DW'

# ---- The tables tell what the records hold ----

share() { printf '{"value":%s,"low":0.125,"high":0.75}' "$1"; }

# mustTell ROW: such a row, without its tags, stands on the page of the opponents.
mustTell() {
    if ! sed 's/<[^>]*>/ /g' "$folder/work/Opponents.htm" | tr -s ' ' | grep -qx " $1 "; then
        echo "The page of the opponents has no row: $1" >&2
        exit 1
    fi
}

freshPages
echo "{\"mostTurns\":200,\"all\":{\"games\":1200,\"drawn\":34,\"judged\":$(share 0.6254)}}" \
    >"$folder/matches/warlord-captain.json"
results=
for result in SB:0.3499 SKF:0.35 DW:0.4499 TQM:0.45 CF:0.5 WR:0.55 HM:0.5501 VD:0.65 TJC:0.6501 \
    ST:0 AM:1 ER:0.5; do
    games="\"games\":100,\"firstSide\":$(share "${result#*:}")"
    results="$results,{\"scenario\":\"${result%:*}\",$games}"
done
echo "{\"scenarios\":[${results#,}]}" >"$folder/matches/captain-captain.json"
build
mustTell 'Warlord against Captain 1200 200 62.5 (12.5 to 75.0) 34'
mustTell 'The Saltbrook 100 35.0 (12.5 to 75.0) badbeasts much better'
mustTell 'The Song of Kestrel Ford 100 35.0 (12.5 to 75.0) badbeasts better'
mustTell 'Duskwater 100 45.0 (12.5 to 75.0) badbeasts better'
mustTell 'The Quiet Marches 100 45.0 (12.5 to 75.0) even'
mustTell "Wren's Return 100 55.0 (12.5 to 75.0) even"
mustTell 'Hollowmere 100 55.0 (12.5 to 75.0) goodbeasts better'
mustTell 'Varrowdene 100 65.0 (12.5 to 75.0) goodbeasts better'
mustTell 'The Jade Circlet 100 65.0 (12.5 to 75.0) goodbeasts much better'
mustTell 'Stonemantle 100 0.0 (12.5 to 75.0) badbeasts much better'
mustTell 'Ambermoor 100 100.0 (12.5 to 75.0) goodbeasts much better'
