# shellcheck shell=bash
# To be sourced: from here on apt-get is that of an empty aarch64 machine with this one's sources. It knows
# neither of this machine's packages nor does it change anything of it. What it needs is in the folder
# $work, which goes when the shell ends.

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work"/{state/lists/partial,cache/archives/partial,packages}
: >"$work/status"
cat >"$work/apt.conf" <<END
APT::Architecture "arm64";
APT::Architectures { "arm64"; };
APT::Sandbox::User "";
Acquire::Languages "none";
Dir::State "$work/state";
Dir::State::status "$work/status";
Dir::Cache "$work/cache";
END
export APT_CONFIG=$work/apt.conf

