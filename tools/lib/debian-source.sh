# shellcheck shell=bash
# Fetches the upstream tarball of a Debian source package. Source it after common.sh.
#
# Debian has no cross-built mingw packages of most libraries, but it has their sources, of the very version whose headers
# it installs, and apt checks what it downloads against the archive's signature. The machine's own sources lists stay as
# they are: a private copy of them, with `deb` turned into `deb-src`, is used with package lists of its own.

# ky_apt_source_options FOLDER: sets the array ky_apt_options, which makes apt work in FOLDER only.
ky_apt_source_options() {
    local folder=$1
    mkdir -p "$folder/parts" "$folder/lists/partial" "$folder/cache/archives/partial"
    ky_apt_options=(
        -q
        -o Dir::Etc::SourceList=/dev/null
        -o "Dir::Etc::SourceParts=$folder/parts"
        -o "Dir::State::Lists=$folder/lists"
        -o "Dir::Cache=$folder/cache"
        -o "APT::Sandbox::User=$(id -un)"
        -o Acquire::Retries=3
    )
}

# ky_derive_source_lists FOLDER: the machine's lists of this Debian release, both formats, asking for sources.
ky_derive_source_lists() {
    local parts=$1/parts release file
    # shellcheck source=/dev/null
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    rm -f "$parts"/*
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        if [ -f "$file" ]; then
            sed -nE "s/^[[:space:]]*deb([[:space:]].*[[:space:]]${release}(-[a-z]+)*(\/[a-z]+)?[[:space:]].*)/deb-src\1/p" "$file"
        fi
    done >"$parts/machine.list"
    # The other format: stanzas with fields, parted by empty lines.
    for file in /etc/apt/sources.list.d/*.sources; do
        if [ -f "$file" ]; then
            awk -v RS= -v ORS='\n\n' -v wanted="(^|\n)Suites:[^\n]* ${release}(-[a-z]+)*(/[a-z]+)?([ \n]|$)" '
                $0 ~ wanted && !/(^|\n)Enabled: *no/ { sub(/(^|\n)Types:[^\n]*/, "\nTypes: deb-src"); print }' "$file"
        fi
    done | sed '/^#/d' >"$parts/machine.sources"
}

# ky_debian_source PACKAGE VERSION TARBALL MEGABYTES: prints the path of the tarball in the download cache, and downloads
# it first when it is not there. An interrupted download is continued where it broke off.
ky_debian_source() {
    local package=$1 version=$2 tarball=$3 megabytes=$4 work=$ky_cache/apt log=$ky_cache/$1.log
    if [ ! -f "$ky_cache/$tarball" ]; then
        ky_need_space "$ky_cache" $((2 * megabytes)) "the source package $package"
        ky_apt_source_options "$work"
        ky_derive_source_lists "$work"
        if ! apt-get "${ky_apt_options[@]}" update >"$log" 2>&1; then
            tail -n 3 "$log" >&2
            ky_fail "apt cannot read the lists of source packages" \
                "check the network and the sources lists in /etc/apt, then run this again"
        fi
        local uri checksum
        read -r uri _ _ checksum < <(ky_apt_source_uris "$package=$version" || ky_apt_source_uris "$package") || true
        if [ "${checksum%%:*}" != SHA256 ]; then
            tail -n 3 "$log" >&2
            ky_fail "Debian's source package $package, with $tarball, cannot be had" \
                "make sure that /etc/apt names the 'main' component of Debian bookworm, then run this again"
        fi
        # Downloads go to a folder of their own; only a complete and verified tarball reaches the cache.
        mkdir -p "$work/partial"
        if ! ky_download "${uri//\'/}" "$work/partial/$tarball" "${checksum#*:}" >>"$log" 2>&1; then
            tail -n 3 "$log" >&2
            ky_need_space "$ky_cache" 20 "the source package $package"
            ky_fail "the download of $tarball failed" \
                "check the network; run this again, the download goes on where it broke off. Without a network, put $tarball into $ky_cache"
        fi
        mv "$work/partial/$tarball" "$ky_cache/$tarball"
        rm -rf "$work" "$log"
    fi
    printf '%s\n' "$ky_cache/$tarball"
}

# ky_apt_source_uris SOURCE-PACKAGE: apt's line about the tarball: 'address' name size checksum.
ky_apt_source_uris() {
    apt-get "${ky_apt_options[@]}" source --print-uris --tar-only "$1" 2>>"$log" | grep -F " $tarball "
}

# ky_download ADDRESS FILE SHA256: continues what is there of the file. What is complete but wrong is removed.
ky_download() {
    local address=$1 file=$2 sha256=$3 proxy
    if ky_has_checksum "$file" "$sha256"; then
        return 0
    fi
    proxy=$(apt-config dump --format '%v' Acquire::http::Proxy)
    if [ "$proxy" = DIRECT ]; then proxy=; fi
    curl --fail --silent --show-error --location --retry 3 --connect-timeout 30 --speed-time 60 --speed-limit 1 \
        ${proxy:+--proxy "$proxy"} --continue-at - --output "$file" "$address" || return
    if ! ky_has_checksum "$file" "$sha256"; then
        rm -f "$file"
        echo "what $address gave is not what Debian has signed" >&2
        return 1
    fi
}

# ky_has_checksum FILE SHA256
ky_has_checksum() {
    [ -f "$1" ] && echo "$2  $1" | sha256sum --check --status
}
