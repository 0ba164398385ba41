"""Reports of the sample product."""
