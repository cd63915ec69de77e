// Nothing but the headers that are compiled ahead of every test.
