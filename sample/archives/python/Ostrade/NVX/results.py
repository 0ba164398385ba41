def pressure_drop(inlet, outlet):
    """Pressure lost between two planes, in Pa."""
    return inlet - outlet
