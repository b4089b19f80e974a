// Holds the precompiled header of the rooms with windows.
