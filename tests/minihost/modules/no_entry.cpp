// A module without an entry function.

extern "C" int nothing_of_use() {
    return 0;
}
