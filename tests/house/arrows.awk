# Reads the table of arrows, then sources: prints each include that no arrow allows and each file without a room.

function RoomOf(path,    room, best) {
    best = ""
    for (room in may) {
        if ((path == room || index(path, room "/") == 1) && length(room) > length(best)) {
            best = room
        }
    }
    return best
}

function Allowed(here, header, quoted,    there, count, words, i) {
    if (!quoted && header ~ /^[a-z_]+$/) {
        return 1  # the standard library
    }
    there = quoted ? RoomOf(header) : ""
    if (there != "" && there == here) {
        return 1
    }
    count = split(may[here], words, " ")
    for (i = 1; i <= count; ++i) {
        if (words[i] == "*" || (quoted && (words[i] == there || words[i] == header)) ||
            (!quoted && index("<" header ">", words[i]) == 1) ||
            (quoted && words[i] == "published" && header in published)) {
            return 1
        }
    }
    return 0
}

FILENAME == table {
    if ($0 !~ /^(#|$)/) {
        room = substr($0, 1, index($0, ":") - 1)
        may[room] = substr($0, index($0, ":") + 1)
    }
    next
}

FNR == 1 {
    here = RoomOf(FILENAME)
    if (here == "") {
        print FILENAME ": its room is missing from the table"
        ++found
    }
}

/^[ \t]*#[ \t]*include[ \t]*["<]/ {
    quoted = /include[ \t]*"/
    header = $0
    sub(/^[^"<]*["<]/, "", header)
    sub(/[">].*$/, "", header)
    if (FILENAME == "RankerModule.h") {
        published[header] = 1
    }
    if (here != "" && !Allowed(here, header, quoted)) {
        print FILENAME ":" FNR ": " here " may not include " header
        ++found
    }
}

END { exit found > 0 }
