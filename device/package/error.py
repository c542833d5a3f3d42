class PackageError(Exception):
    """The bytes are not the package that they should be."""
