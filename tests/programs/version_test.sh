#!/bin/sh
# Every history of the game begins with the version that is built.
#   version_test.sh VERSION SOURCE_FOLDER
set -eu
version=$1
cd "$2"

# newestIs FILE PATTERN: the first line of the file that has the pattern has the version.
newestIs() {
    line=$(grep -m 1 "$2" "$1")
    case $line in
        *[\ \(\"]"$version"[\ \)\"]*) ;;
        *) echo "$1 does not begin with $version: $line" >&2; exit 1 ;;
    esac
}
newestIs CHANGELOG.md '^## '
newestIs debian/changelog '^qarn '
newestIs packaging/net.thornmere.qarn.metainfo.xml '<release '
