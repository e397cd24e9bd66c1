#!/bin/sh
# What software centres read is right, and its pictures are there to be put on the homepage.
#   appstream_test.sh SOURCE_FOLDER
set -eu
cd "$1"
metainfo=packaging/net.thornmere.qarn.metainfo.xml

appstreamcli validate --strict --pedantic --no-net "$metainfo"
pictures=$(sed -n 's|.*<image.*://[^/]*/\(.*\)</image>|\1|p' "$metainfo")
ls -- $pictures
