# shellcheck shell=bash
# To be sourced.

# quietly LOG COMMAND...: runs the command with its output in the file LOG, and shows all of it if
# the command fails. Gives the command's exit status.
quietly() {
    log=$1
    shift
    mkdir -p "$(dirname "$log")"
    "$@" >"$log" 2>&1 && return
    status=$?
    cat "$log" >&2
    return "$status"
}
