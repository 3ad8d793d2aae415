# From a benchmark's comma-separated table to lines of "owner/name value": items or bytes in a second where they
# are counted, else the time of one pass in the table's unit.
BEGIN { FS = "," }
$1 == "name" {
    for (i = 1; i <= NF; i++)
        column[$i] = i
    next
}
column["name"] {
    name = $1
    gsub(/"|\/manual_time|\/iterations:[0-9]+/, "", name)
    value = $column["items_per_second"]
    if (value == "")
        value = $column["bytes_per_second"] / 1e9
    if (value == 0)
        value = $column["real_time"]
    if ($column["error_occurred"] == "")
        print owner "/" name, value
}
