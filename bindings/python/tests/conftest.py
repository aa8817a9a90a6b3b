from hypothesis import HealthCheck, settings

# No example may fail because the machine is slow.
settings.register_profile("vornlib", deadline=None, suppress_health_check=[HealthCheck.too_slow])
settings.load_profile("vornlib")
