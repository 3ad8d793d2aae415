# One table from the samples (first file) by the rows of the second.
function sorted(name, into,   n, i, j, value) {
    n = split(values[name], into, " ")
    for (i = 2; i <= n; i++) {
        value = into[i] + 0
        for (j = i - 1; j > 0 && into[j] + 0 > value; j--)
            into[j + 1] = into[j]
        into[j + 1] = value
    }
    return n
}
function median(name,   v, n) {
    n = sorted(name, v)
    return n % 2 ? v[(n + 1) / 2] : (v[n / 2] + v[n / 2 + 1]) / 2
}
function short(value) { return sprintf(value >= 1000 ? "%.0f" : value >= 100 ? "%.1f" : "%.3g", value) }
function shown(name,   v, n) {
    if (!(name in values))
        return "-"
    n = sorted(name, v)
    return short(median(name)) " (" short(v[1]) " to " short(v[n]) ")"
}
function trimmed(text) {
    gsub(/^ +| +$/, "", text)
    return text
}
FNR == 1 { file++ }
file == 1 {
    values[$1] = values[$1] " " $2
    next
}
/^#/ || NF == 0 { next }
FNR == 1 || !header {
    header = 1
    printf "%-31s %-30s %-44s %8s %9s\n", "work", "ours: median (spread)", "best other: median (spread)", "ratio", "goal"
}
{
    split($0, cell, "|")
    kind = trimmed(cell[2])
    goal = trimmed(cell[3])
    ours = trimmed(cell[4])
    upward = kind == "more" || kind == "least" # the greater the better
    best = ""
    count = split(trimmed(cell[5]), others, " ")
    for (i = 1; i <= count; i++)
        if (others[i] in values &&
            (best == "" || upward == (median(others[i]) > median(best))))
            best = others[i]
    if (ours in values && best != "" && median(best) > 0)
        ratio = median(ours) / median(best)
    else
        ratio = ""
    judged = kind == "most" || kind == "least" ? (ours in values ? median(ours) : "") : ratio
    if (goal == "-")
        verdict = ""
    else if (judged == "")
        verdict = "not seen"
    else if (upward ? judged >= goal + 0 : judged <= goal + 0)
        verdict = "met"
    else
        verdict = "MISSED"
    owner = best
    sub(/^ours\//, "", owner)
    sub(/\/.*/, "", owner)
    printf "%-31s %-30s %-44s %8s %9s %s\n", trimmed(cell[1]), shown(ours),
        best == "" ? "-" : owner " " shown(best), ratio == "" ? "-" : sprintf("%.2f", ratio),
        goal == "-" ? "" : (upward ? ">= " : "<= ") goal, verdict
}
