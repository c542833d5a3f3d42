"""Reads (and where a link step needs it, repairs) 64-bit little-endian Mach-O images."""
