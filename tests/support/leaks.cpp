// Read by the leak sanitizer, where the tests are built with it.

// Looked up by the sanitizer's library, hence visible to it.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();

// The font library keeps its patterns until the process ends and loses its only pointers to some;
// nothing of ours lies under its name.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}
