# shellcheck shell=bash
# To be sourced, in the folder of the repository.

# wanted SECTION...: the packages that these sections of packages.txt name, one a line.
wanted() {
    local section
    for section; do
        awk -v section="[$section]" '
            /^\[/ { current = $1; next }
            NF && !/^#/ && current == section { print $1 }' scripts/packages.txt
    done
}
