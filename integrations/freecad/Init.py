# Without windows nothing is served until serve.py is run.
