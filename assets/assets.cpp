// The library holds resources alone; a library needs a source file to be one.
