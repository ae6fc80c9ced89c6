# shellcheck shell=bash
# Column Profiler beside datamash and Miller. Source it after common.sh; tools/bench does.

bench_rows=1000000
bench_runs=3
# Columns of numbers in the file that bench/ProfilerData.cpp writes, by their place and by name.
bench_fields=(1 4 5 6 7 8 9 10)
bench_names=(id even bell balanced skewed offset gaps ties)

# bench_profiler: prints the tables; fails when a target is missed or the figures do not agree.
bench_profiler() {
    local folder=$ky_build/bench failed=0
    bench_folder=$folder
    mkdir -p "$folder"
    ky_need_space "$folder" 300 "the benchmark's table"
    ky_say "writing a table of $bench_rows rows and 10 columns (5 s)"
    g++ -std=c++20 -O2 -o "$folder/profiler_data" "$ky_root/bench/ProfilerData.cpp"
    "$folder/profiler_data" "$bench_rows" '' >"$folder/table.csv"
    # datamash knows missing numbers by NA alone.
    "$folder/profiler_data" "$bench_rows" NA >"$folder/table-na.csv"

    ky_say "computing the statistics of its columns with each program, $bench_runs times (2 min)"
    bench_compare || failed=1
    ky_say "reading it into the window (20 s)"
    "$ky_root/tools/wine-run" "$ky_build/mingw-release/bin/profiler_bench.exe" \
        "$(ky_windows_path "$folder/table.csv")" | tr -d '\r' || failed=1
    rm -f "$folder/table.csv" "$folder/table-na.csv"
    return "$failed"
}

# Each of these leaves its figures in a file of its own.

bench_ours() {
    "$ky_root/tools/wine-run" "$ky_build/mingw-release/bin/profiler.exe" --language en \
        --export "$(ky_windows_path "$bench_folder/ours.csv")" "$(ky_windows_path "$bench_folder/table.csv")"
}

bench_datamash() {
    local field operations=()
    for field in "${bench_fields[@]}"; do
        operations+=(count "$field" min "$field" max "$field" mean "$field" sstdev "$field")
        operations+=(perc:5 "$field" perc:25 "$field" perc:50 "$field" perc:75 "$field" perc:95 "$field")
    done
    LC_ALL=C datamash -t, --header-in --narm "${operations[@]}" <"$bench_folder/table-na.csv" >"$bench_folder/datamash.csv"
}

bench_miller() {
    local names
    names=$(IFS=, && echo "${bench_names[*]}")
    mlr --icsv --ojson stats1 -i -a count,null_count,min,max,mean,stddev,p5,p25,p50,p75,p95 -f "$names" \
        "$bench_folder/table.csv" >"$bench_folder/miller.json"
}

# bench_seconds COMMAND: the median of its time, whole processes, after one run that only warms up.
bench_seconds() {
    local run begin
    "$1"
    for ((run = 0; run < bench_runs; run++)); do
        begin=$EPOCHREALTIME
        "$1"
        awk -v begin="$begin" -v end="$EPOCHREALTIME" 'BEGIN { printf "%.3f\n", end - begin }'
    done | sort -n | sed -n "$((bench_runs / 2 + 1))p"
}

# The figures as lines "COLUMN STATISTIC VALUE".

bench_figures_ours() {
    tr -d '\r' <"$bench_folder/ours.csv" | awk -F, 'NR > 1 && $2 == "number" {
        split("count missing - min max mean sd p5 p25 p50 p75 p95", name, " ")
        for (i = 1; i <= 12; i++) if (name[i] != "-") print $1, name[i], $(i + 2) }'
}

bench_figures_datamash() {
    awk -F, -v columns="${bench_names[*]}" '{
        split(columns, column, " ")
        count = split("count min max mean sd p5 p25 p50 p75 p95", name, " ")
        for (i = 0; i < NF; i++) print column[int(i / count) + 1], name[i % count + 1], $(i + 1) }' "$bench_folder/datamash.csv"
}

bench_figures_miller() {
    sed -n 's/^ *"\([a-z]*\)_\([a-z0-9_]*\)": \([^,]*\),*$/\1 \2 \3/p' "$bench_folder/miller.json" |
        sed -e 's/ null_count / missing /' -e 's/ stddev / sd /'
}

# bench_agreement OTHER...: how many of our figures one of the other programs has, too, but for the last digits: "80 of
# 80". Tells those that differ to the standard error stream.
bench_agreement() {
    local other
    for other in "$@"; do "bench_figures_$other" | sed "s/^/$other /"; done |
        awk 'NR == FNR { ours[$1 " " $2] = $3; next }
            { figure = $2 " " $3; a = ours[figure]; b = $4; off = a - b; if (off < 0) off = -off
              asked[figure] = 1
              if (a != "" && off <= 1e-9 * (b < 0 ? -b : b) + 1e-12) confirmed[figure] = 1
              else print $1 " differs: " figure " " b ", ours " a >"/dev/stderr" }
            END { for (figure in asked) { all++; same += confirmed[figure] }; printf "%d of %d", same, all }' \
            <(bench_figures_ours) -
}

bench_compare() {
    local ours other seconds verdict agreement failed=0
    ours=$(bench_seconds bench_ours)
    printf '\n### Statistics of %s rows and 10 columns (%s MB)\n\n' "$(bench_grouped "$bench_rows")" \
        "$(awk -v bytes="$(stat -c %s "$bench_folder/table.csv")" 'BEGIN { printf "%.0f", bytes / 1e6 }')"
    printf '| whole process, median of %d, file in memory | seconds | its time / ours | figures as ours | |\n' "$bench_runs"
    printf '| --- | ---: | ---: | ---: | --- |\n'
    printf '| Column Profiler under Wine, `profiler --export` | %.2f | 1 | | |\n' "$ours"
    for other in datamash miller; do
        seconds=$(bench_seconds "bench_$other")
        verdict=met
        if ! awk -v a="$ours" -v b="$seconds" 'BEGIN { exit !(a < b) }'; then
            verdict='**MISSED**'
            failed=1
        fi
        printf '| %s | %.2f | %s | %s | %s |\n' "$(bench_name "$other")" "$seconds" \
            "$(awk -v a="$ours" -v b="$seconds" 'BEGIN { printf "%.1f (> 1)", b / a }')" \
            "$(bench_agreement "$other" 2>/dev/null)" "$verdict"
    done
    agreement=$(bench_agreement datamash miller 2>"$bench_folder/differs.txt")
    verdict=met
    if [ "${agreement% of *}" != "${agreement#* of }" ]; then
        verdict='**MISSED**'
        failed=1
    fi
    printf '| our figures that one of the two confirms | | | %s | %s |\n' "$agreement" "$verdict"
    if [ -s "$bench_folder/differs.txt" ]; then
        printf '\n'
        sed 's/^/- /' "$bench_folder/differs.txt"
    fi
    return "$failed"
}

# bench_grouped NUMBER: "1,000,000".
bench_grouped() {
    sed -e ':again' -e 's/^\([0-9]*[0-9]\)\([0-9]\{3\}\)/\1,\2/' -e 't again' <<<"$1"
}

bench_name() {
    case $1 in
    datamash) datamash --version | sed -n '1s/^datamash (GNU datamash)/GNU datamash/p' ;;
    miller) mlr --version | sed 's/^mlr/Miller/' ;;
    esac
}
