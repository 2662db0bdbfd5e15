// The leak sanitizer reads this file's functions where the tests are built with it.

// The sanitizer's library looks these functions up, so they must be visible to it.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();

// The font library keeps its patterns until the process ends and loses its only pointers to some.
// No allocation of ours has its name.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}
