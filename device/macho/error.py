class MachOError(Exception):
    """The bytes are not the Mach-O image that they should be."""
