# Makes Markdown of what the benchmarks print (Row.h), aligned so that it reads well on a terminal too. To be run in the C
# locale, in which every awk counts bytes.

BEGIN { FS = "\t" }

# Columns that a text takes: bytes that continue a character (UTF-8) take none.
function width(text) {
    gsub(/[\200-\277]/, "", text)
    return length(text)
}

function padded(text, columns, toTheRight,    gap) {
    gap = sprintf("%" (columns - width(text)) "s", "")
    if (width(text) >= columns)
        return text
    return toTheRight ? gap text : text gap
}

# Three digits that count, with commas between thousands.
function number(value,    text, place) {
    if (value == "")
        return ""
    value += 0
    text = sprintf(value >= 100 || value == int(value) ? "%.0f" : value >= 10 ? "%.1f" : "%.2f", value)
    for (place = length(text) - 3; place > 0 && text !~ /\./; place -= 3)
        text = substr(text, 1, place) "," substr(text, place + 1)
    return text
}

function withUnit(value, unit) {
    return value == "" ? "" : unit == "" ? number(value) : number(value) " " unit
}

function cell(line, column, text) {
    cells[line, column] = text
    if (width(text) > widths[column])
        widths[column] = width(text)
}

# Prints the cells of so many lines, the first of them the heading; all columns but those named stand to the right.
function printCells(lines, columns, left,    line, column, text) {
    for (line = 1; line <= lines; ++line) {
        text = "|"
        for (column = 1; column <= columns; ++column)
            text = text " " padded(cells[line, column], widths[column], index(left, column) == 0) " |"
        print text
        if (line > 1)
            continue
        text = "|"
        for (column = 1; column <= columns; ++column)
            text = text " " rule(widths[column], index(left, column) == 0) " |"
        print text
    }
    delete cells
    delete widths
}

function rule(columns, toTheRight,    text) {
    while (length(text) < columns - 1)
        text = text "-"
    return toTheRight ? text ":" : text "-"
}

function heading(names,    count, list, i) {
    count = split(names, list, ",")
    for (i = 1; i <= count; ++i)
        cell(1, i, list[i])
}

function printGrowthTable(by,    line, column, i) {
    if (!growthRows[by])
        return
    cell(1, 1, by)
    for (column = 1; column <= growthSizes[by]; ++column)
        cell(1, column + 1, number(growthSize[by, column]))
    for (line = 1; line <= growthRows[by]; ++line) {
        cell(line + 1, 1, growthName[by, line])
        for (i = 1; i <= growthSizes[by]; ++i)
            cell(line + 1, i + 1, number(growth[by, growthName[by, line], growthSize[by, i]]))
    }
    print ""
    printCells(growthRows[by] + 1, growthSizes[by] + 1, "1")
}

# Sizes stand in their order, whatever the order in which they came.
function addSize(by, size,    place) {
    if ((by, size) in known)
        return
    known[by, size] = 1
    for (place = ++growthSizes[by]; place > 1 && growthSize[by, place - 1] > size; --place)
        growthSize[by, place] = growthSize[by, place - 1]
    growthSize[by, place] = size
}

$1 == "area" { cell(++areas + rows + 1, 1, "**" $2 "**") }

$1 == "row" {
    line = areas + ++rows + 1
    cell(line, 1, $2)
    cell(line, 2, withUnit($3, $4))
    cell(line, 3, withUnit($6, $4))
    cell(line, 4, $5)
    cell(line, 5, number($7))
    cell(line, 6, $8)
    cell(line, 7, $9)
    ++verdicts[$9]
}

$1 == "note" { notes[++noteCount] = $2 }

$1 == "growth" {
    addSize($2, $3 + 0)
    name = $5 == "" ? $4 : $4 ", " $5
    if (!(($2, name) in growthKnown))
        growthName[$2, ++growthRows[$2]] = name
    growthKnown[$2, name] = 1
    growth[$2, name, $3 + 0] = $6
}

END {
    if (rows) {
        heading("what,ours,beside it,which is,ratio,goal,verdict")
        printCells(areas + rows + 1, 7, "1,4,7")
    }
    printGrowthTable("captures")
    printGrowthTable("megapixels")
    if (noteCount)
        print ""
    for (i = 1; i <= noteCount; ++i)
        print "- " notes[i]
    if (rows)
        printf "\n%d pass, %d fall short, %d could not be judged, %d have no goal.\n", verdicts["pass"], verdicts["FALLS SHORT"], \
            verdicts["not measured"], verdicts[""]
}
