# Input: the paths of all sources, relative to src/, one per line. Faults go to standard output.

BEGIN {
    # The rooms that each room may include, beside itself.
    may["app"] = " "
    may["imaging"] = " app "
    may["boxes"] = " imaging app "
    may["boxes/second"] = " boxes imaging app "
    may["profiles"] = " boxes imaging app "
    may["recognition"] = " profiles imaging app "
    may["review/doubts"] = " recognition profiles imaging app "
    may["review"] = " review/doubts recognition profiles imaging app "
    may["results"] = " recognition profiles imaging app "
    may["intake"] = " imaging app "
    may["batch"] = " review review/doubts results recognition profiles imaging app "
    may["batch/program"] = " batch" may["batch"]
    may["ui/commands"] = " review review/doubts results intake recognition profiles boxes boxes/second imaging app "
    # The rooms of the window, from the lowest to the one that puts all together.
    engine = " ui/commands review review/doubts results intake recognition profiles boxes boxes/second imaging app "
    may["ui/base"] = engine
    may["ui/look"] = " ui/base" engine
    may["ui/page"] = " ui/base" engine
    may["ui/lists"] = " ui/base" engine
    may["ui/profiling"] = " ui/page ui/lists ui/base" engine
    may["ui/reviewing"] = may["ui/profiling"]
    may["ui/settings"] = may["ui/profiling"]
    may["ui/exporting"] = may["ui/profiling"]
    may["ui/scanning"] = may["ui/profiling"]
    may["ui/shell"] = " ui/profiling ui/reviewing ui/settings ui/exporting ui/scanning ui/look ui/page ui/lists ui/base" engine
    # The rooms that know a library.
    knows["Qt"] = " ui/base ui/look ui/page ui/lists ui/profiling ui/reviewing ui/settings ui/exporting ui/scanning ui/shell "
    knows["FreeImage"] = " imaging "
    knows["libtiff"] = " imaging "
    knows["pugixml"] = " profiles recognition review review/doubts "
    knows["libxlsxwriter"] = " results "
    knows["Poppler"] = " intake "
    knows["SANE"] = " intake "
    knows["platform"] = " app imaging intake batch ui/shell "
    faults = 0
}

{ exists[$0] = 1; files[++fileCount] = $0 }

END {
    for (i = 1; i <= fileCount; i++)
        readIncludes(files[i])
    for (i = 1; i <= fileCount; i++)
        visit(files[i], "")
    if (fileCount == 0)
        fault("no sources found")
    if (faults > 0)
        exit 1
    printf "Layers: %d files, no forbidden edge.\n", fileCount
}

function fault(text) {
    print text
    faults++
}

function room(path) {
    if (path ~ /^ui\/[^\/]+\//)
        return "ui/" substr(path, 4, index(substr(path, 4), "/") - 1)
    if (path ~ /^(boxes\/second|review\/doubts|batch\/program)\//)
        return substr(path, 1, match(path, /\/[^\/]*$/) - 1)
    return path ~ /\// ? substr(path, 1, index(path, "/") - 1) : ""
}

# The library that a header belongs to; empty for the standard library and for our own headers.
function library(header) {
    if (header ~ /(^|\/)Q[A-Za-z0-9_]+(\.h)?$/ || header ~ /^Qt[A-Za-z]*\// || header ~ /^q[a-z0-9_]+\.h$/)
        return "Qt"
    if (header ~ /^FreeImage/)
        return "FreeImage"
    if (header ~ /^tiff/)
        return "libtiff"
    if (header ~ /^pugi/)
        return "pugixml"
    if (header ~ /^poppler\//)
        return "Poppler"
    if (header ~ /^sane\//)
        return "SANE"
    if (header ~ /^xlsxwriter/)
        return "libxlsxwriter"
    if (header ~ /^(sys|linux|arpa|netinet)\// || header ~ /^(unistd|fcntl|fnmatch|glob|dirent|getopt|pwd|poll|signal|spawn|dlfcn|pthread|windows|io)\.h$/)
        return "platform"
    return ""
}

function readIncludes(file,    line, number, header, quoted) {
    if (!(room(file) in may))
        fault(file ": not in a room that the architecture knows")
    number = 0
    while ((getline line < file) > 0) {
        number++
        if (line !~ /^[ \t]*#[ \t]*include([ \t"<]|$)/)
            continue
        if (line !~ /^[ \t]*#[ \t]*include[ \t]*(<[^>]+>|"[^"]+")/) {
            fault(file ":" number ": include without a plain file name")
            continue
        }
        quoted = line ~ /include[ \t]*"/
        header = line
        sub(/^[^<"]*[<"]/, "", header)
        sub(/[>"].*$/, "", header)
        judge(file, number, header, quoted)
    }
    close(file)
}

function judge(file, number, header, quoted,    where, lib, target) {
    where = file ":" number ": "
    lib = header in exists ? "" : library(header)
    if (lib != "") {
        if (index(knows[lib], " " room(file) " ") == 0)
            fault(where lib " header " header " in " room(file))
    } else if (header in exists) {
        target = room(header)
        if (target != room(file) && index(may[room(file)], " " target " ") == 0)
            fault(where room(file) " may not include " target " (" header ")")
        edges[file] = edges[file] header "\n"
    } else if (quoted && !(header ~ /\.moc$/ && room(file) ~ /^ui\//)) {
        fault(where "no file src/" header "; includes are written \"room/File.h\"")
    } else if (!quoted && header ~ /[.\/]/) {
        fault(where "header of an unknown library: " header)
    }
}

# Depth first: a file met again while its own includes are being followed closes a circle.
function visit(file, path,    count, list, k) {
    if (state[file] == "done")
        return
    if (state[file] == "open") {
        fault("circle:" path " " file)
        return
    }
    state[file] = "open"
    count = split(edges[file], list, "\n")
    for (k = 1; k < count; k++)
        visit(list[k], path " " file)
    state[file] = "done"
}
