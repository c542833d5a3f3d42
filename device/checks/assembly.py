"""No signed static code pointer in the assembly of the arm64e slice.

The compiler writes one as `.quad function@AUTH(...)`, and its own assembler then silently drops
the signature: the phone would jump through an unsigned pointer and crash.
"""


def check(list_path):
    """`list_path` names a file that lists the assembly files, one a line."""
    with open(list_path, encoding="utf-8") as file:
        paths = file.read().split("\n")
    sources = [path for path in paths if path]
    if not sources:
        yield f"{list_path} lists no assembly"
    for path in sources:
        yield from _check_file(path)


def _check_file(path):
    with open(path, encoding="utf-8") as file:
        lines = file.read().split("\n")
    if not any("build_version ios" in line for line in lines):
        yield f"{path} is not assembly for a phone"
    owner = ""
    for number, line in enumerate(lines, 1):
        if line and not line[0].isspace() and not line.startswith(("L", "l_", ";")):
            owner = line.split(":")[0]
        if "@AUTH" in line:
            yield f"{path}:{number}: {owner} holds a signed static pointer: {line.strip()}"
