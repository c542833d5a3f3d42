"""What of a slice was run, and what has to be."""


def functions_never_entered(code, run):
    return [function for function in code.functions if function.address not in run]


def share(code, run):
    """Of the slice's own instructions, in percent."""
    return 100 * len(run.intersection(code.instructions)) / len(code.instructions)


def printed(code, run):
    never = functions_never_entered(code, run)
    yield (f"{len(run.intersection(code.instructions))} of {len(code.instructions)} instructions "
           f"({share(code, run):.1f} %), {len(never)} of {len(code.functions)} functions never entered:")
    for function in never:
        yield f"{function.size // 4:5d}  {function.name}"
    yield "not run in functions that were entered:"
    entered = [function for function in code.functions if function not in never]
    missed = {function: sum(address not in run for address in function.instructions())
              for function in entered}
    for function in sorted(entered, key=missed.get, reverse=True):
        if missed[function]:
            yield f"{missed[function]:5d} of {function.size // 4:4d}  {function.name}"


def untouched(code, run, signing):
    """Complaints: each import that is called, each source and each kind of signature must be in what
    was run."""
    for stub, name in code.imports.items():
        if stub not in run:
            yield f"the import {name} is never called"
    for source in {function.source for function in code.functions}:
        if not any(function.address in run for function in code.functions if function.source == source):
            yield f"{source} is never entered"
    kinds = {signing(code.word_at(address)): address for address in code.instructions}
    touched = {signing(code.word_at(address)) for address in run}
    for kind, address in kinds.items():
        if kind is not None and kind not in touched:
            yield f"no instruction like that at {address:#x} is run, which signs or authenticates"


def read_kept(file):
    """Names of functions, each with the reason why no script enters it: the comment above it."""
    kept, reason = {}, ""
    for line in file.read_text(encoding="utf-8").splitlines():
        if line.startswith("#"):
            reason = f"{reason} {line[1:].strip()}".strip()
        elif line.strip():
            kept[line.strip()] = reason
        else:
            reason = ""
    return kept


def differences(code, run, kept):
    """Complaints: the functions that are never entered must be those of the kept list."""
    names = {function.name for function in code.functions}
    never = {function.name for function in functions_never_entered(code, run)}
    for name in sorted(name for name, reason in kept.items() if not reason):
        yield f"in the list of those that are never entered without the reason: {name}"
    for name in sorted(never - kept.keys()):
        yield f"never entered, and not in the list with the reason: {name}"
    for name in sorted(kept.keys() & names - never):
        yield f"entered, but in the list of those that never are: {name}"
