// A module that is no plug-in: it exports no entry function.

extern "C" int nothing_of_use() {
    return 0;
}
