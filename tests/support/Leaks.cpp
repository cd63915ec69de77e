// Read by the leak checker when it is linked in. Only what the libraries below the toolkit keep until the process ends.
extern "C" const char *__lsan_default_options();
extern "C" const char *__lsan_default_options()
{
    return "print_suppressions=0";
}

extern "C" const char *__lsan_default_suppressions();
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libdbus-1.so\n";
}
