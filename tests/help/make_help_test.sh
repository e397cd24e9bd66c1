#!/bin/sh
# The help is the same from build to build, and faults in the pages fail the build.
#   make_help_test.sh MAKE_HELP PAGES CHMCMD HELP_FILE
set -eu
makeHelp=$1
pages=$2
chmcmd=$3
helpFile=$4

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

build() {
    "$makeHelp" "$folder/pages" "$folder/work" "$chmcmd" "$folder/Help.chm" 2>"$folder/errors"
}

# freshPages: the pages as they are, to be spoilt.
freshPages() {
    rm -rf "$folder/pages" "$folder/Help.chm"
    cp -r "$pages" "$folder/pages"
}

# mustFail WHAT WORDS...: the build fails, says so in all of these words, and leaves no file.
mustFail() {
    what=$1
    shift
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

freshPages
rm "$folder/pages/Movement.htm"
mustFail 'a missing page' 'Movement.htm'

freshPages
rm "$folder/pages/pictures/odds.png"
sed -i 's/Troubleshooting.htm#Remove/Troubleshooting.htm#Nowhere/' "$folder/pages/Games.htm"
mustFail 'a missing picture or anchor' 'odds.png' 'Nowhere'

freshPages
sed -i 's/{{odds}}/{{odd}}/' "$folder/pages/Combat.htm"
mustFail 'an unknown mark' 'Combat.htm: nothing fills {{odd}}'

freshPages
sed -i '/{{menu:mnuSave}}/d' "$folder/pages/Keys.htm"
mustFail 'a menu item that no page tells of' 'mnuSave'

freshPages
rm "$folder/pages/scenarios/HM.htm"
mustFail 'a scenario without notes' 'HM.htm'
