def row(name, value, unit):
    """One line of a report's table."""
    return "%-30s %12.4g %s" % (name, value, unit)
