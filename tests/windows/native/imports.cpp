// Windows' functions that tests stand before: the module calls them through these pointers.
extern "C"
{
    void GetModuleFileNameW();
    void LoadStringW();
    void MessageBoxW();

    void (*__imp_GetModuleFileNameW)() = GetModuleFileNameW;
    void (*__imp_LoadStringW)() = LoadStringW;
    void (*__imp_MessageBoxW)() = MessageBoxW;
}
