#!/bin/sh
# Plays the matches whose results are told, and keeps them as matches/*.json.
#   tools/record_matches.sh [PAIRS [TURNS]]   games per seat and scenario; turns until a game is cut off
# CONSOLE names another qarn-console than the release build's. A match that fails leaves its old record.
set -eu
cd "$(dirname "$0")/.."
console=${CONSOLE:-build/release/qarn-console}
pairs=${1:-50}
turns=${2:-200}

for match in scout-random captain-classic captain-scout warlord-captain captain-captain; do
    record=matches/$match.json
    trap 'rm -f "$record.new"' EXIT
    "$console" --match "${match%-*}" "${match#*-}" --scenario all --games "$pairs" \
        --turns "$turns" --json > "$record.new"
    mv "$record.new" "$record"
done
