// A library needs a source; the precompiled headers are what counts.
