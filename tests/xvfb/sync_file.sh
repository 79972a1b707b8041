# Sourced by what looks into files with sync points: records of two fields of 21 characters, CR LF.
#
# record FIELD FIELD, outline_of FILE, sync_points_of FILE, check_side FILE DESCRIPTION X,
# check_results SIDE_A SIDE_B

record() { printf '%-21s%-21s\r\n' "$1" "$2"; }

# The points of the outline, "X Y" a line, the closing one too, and the sync points.
outline_of() { points_of "$1" | sed '/^Puntos Sincronismo/,$d'; }
sync_points_of() { points_of "$1" | sed '1,/^Puntos Sincronismo/d' | sed 1d; }
points_of() { tr -d '\r' <"$1" | sed 1,2d | awk '{print $1 " " $2}'; }

number='-?[0-9]+(\.[0-9]+)?(E-[0-9]+)?'
check_records() {
    local file=$1
    (($(stat -c %s "$file") % 44 == 0)) || fail "$file has a record that is not whole"
    outline_of "$file" | grep -vE "^$number $number$" >&2 && fail "$file has no numbers there"
    [[ $(outline_of "$file" | sed -n 1p) == $(outline_of "$file" | sed -n '$p') ]] ||
        fail "$file does not close"
    sync_points_of "$file" | while read -r point; do
        outline_of "$file" | grep -xF -- "$point" >/dev/null ||
            fail "the sync point $point of $file is no point of it"
    done
}

# A side begins at a corner, its first sync point, and has another.
check_side() {
    check_records "$1"
    [[ $(head -c 44 "$1" | tail -c 23) == "$2"* ]] || fail "$1 does not tell '$2'"
    local first
    first=$(outline_of "$1" | sed -n 1p)
    [[ $first == "$3 "* ]] || fail "$1 begins at $first, not on X $3"
    [[ $(sync_points_of "$1" | sed -n 1p) == "$first" ]] || fail "$1 has no sync point at its start"
    (($(sync_points_of "$1" | wc -l) == 2)) || fail "$1 has not two sync points"
}

# Both results have the same number of points, at least those of the richer side, and the same
# number of sync points.
check_results() {
    local a=${1}2.DAT b=${2}2.DAT
    for file in "$a" "$b"; do
        check_records "$file"
        [[ $(head -c 44 "$file") == *corrpoltrap* ]] || fail "$file is no result"
        (($(sync_points_of "$file" | wc -l) == 2)) || fail "$file has not two sync points"
        for side in "$1" "$2"; do
            (($(outline_of "$file" | wc -l) >= $(outline_of "$side.dat" | wc -l))) ||
                fail "$file lost points of $side.dat"
        done
    done
    (($(stat -c %s "$a") == $(stat -c %s "$b"))) || fail "the results have not as many points"
    cmp -s "$a" "$b" && fail "the results are the same"
    return 0
}
