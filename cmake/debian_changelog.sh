#!/bin/sh
# Prints the releases of a CHANGELOG.md, "## VERSION, DATE" and items below, in the form of Debian's changelogs:
# debian_changelog.sh CHANGELOG.md PACKAGE 'NAME <ADDRESS>'
set -eu

awk -v package="$2" -v maintainer="$3" '
    function end_item(    count, words, i, line) {
        count = split(item, words, " ")
        line = "  *"
        for (i = 1; i <= count; ++i) {
            if (length(line " " words[i]) > 79) {
                print line
                line = "   "
            }
            line = line " " words[i]
        }
        if (count) print line
        item = ""
    }
    function end_release() {
        end_item()
        if (date) printf "\n -- %s  %s\n\n", maintainer, date
        date = ""
    }
    /^## / { end_release() }
    /^## [0-9]/ {
        command = "LC_ALL=C date -uRd " $3
        command | getline date
        close(command)
        sub(",", "", $2)
        printf "%s (%s) unstable; urgency=medium\n\n", package, $2
    }
    date && /^- / {
        end_item()
        sub("^- ", "")
    }
    date && !/^## / { item = item " " $0 }
    END { end_release() }
' "$1"
