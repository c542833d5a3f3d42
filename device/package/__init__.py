"""Makes the package that a phone installs, and checks it."""
