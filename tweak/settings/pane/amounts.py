"""Numbers with their units, as a language writes them."""


def _one(number):
    return "ONE" if number == 1 else "OTHER"


def _zero_or_one(number):
    return "ONE" if number < 2 else "OTHER"


def _hebrew(number):
    return {1: "ONE", 2: "TWO"}.get(number, "OTHER")


def _arabic(number):
    if number in (1, 2):
        return _hebrew(number)
    return "FEW" if number == int(number) and 3 <= number % 100 <= 10 else "OTHER"


# A part of a unit takes the singular's genitive, which is the form of few.
def _polish(number):
    if number == 1:
        return "ONE"
    return "FEW" if number != int(number) or _ends_in_few(number) else "OTHER"


def _east_slavic(number):
    if number == int(number) and number % 10 == 1 and number % 100 != 11:
        return "ONE"
    return "FEW" if number != int(number) or _ends_in_few(number) else "OTHER"


def _ends_in_few(number):
    return 2 <= number % 10 <= 4 and not 12 <= number % 100 <= 14


# By the names that the bundle's tables use.
_RULES = {
    "none": lambda number: "OTHER",
    "one": _one,
    "zero-or-one": _zero_or_one,
    "hebrew": _hebrew,
    "arabic": _arabic,
    "polish": _polish,
    "east-slavic": _east_slavic,
}


def _number(value, words):
    text = f"{value:g}".replace(".", words("DECIMAL_SEPARATOR"))
    return text.translate(str.maketrans("0123456789", words("DIGITS")))


def _counted(value, unit, words):
    form = _RULES[words("PLURAL_RULE")](value)
    return words(f"{unit}_{form}").replace("%@", _number(value, words))


def _minutes(value, words):
    hours, minutes = divmod(value, 60)
    parts = [_counted(part, unit, words)
             for part, unit in ((hours, "HOURS"), (minutes, "MINUTES")) if part]
    if len(parts) < 2:
        return parts[0]
    return words("HOURS_AND_MINUTES").replace("%1$@", parts[0]).replace("%2$@", parts[1])


def amount(value, unit, words):
    """`unit` is minutes, seconds, songs or percent; `words` gives a symbolic key's text."""
    if unit == "minutes":
        return _minutes(value, words)
    if unit == "percent":
        return words("PERCENT").replace("%@", _number(value, words))
    return _counted(value, unit.upper(), words)
