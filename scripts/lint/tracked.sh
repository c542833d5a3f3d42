# shellcheck shell=bash
# To be sourced by the checks.

# here GIT_COMMAND...: git on this repository, even if another user owns it, as when a container
# runs on somebody's folder.
here() {
    git -c safe.directory="$PWD" "$@"
}

# tracked PATTERN...: the tracked files that match (* crosses folders), each ended by a zero byte.
tracked() {
    here ls-files -z -- "$@"
}
