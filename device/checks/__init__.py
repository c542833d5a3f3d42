"""What a phone would otherwise find out. Each check yields one line of text per failure."""
