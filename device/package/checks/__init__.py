"""The checks of a package: each yields what is wrong, one line per failure."""
