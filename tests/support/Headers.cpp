// Nothing: the headers that all suites share are precompiled with it.
