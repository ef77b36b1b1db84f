// What all targets ask of the sanitizers. A report needs the place of the fault and hardly ever the
// whole way to each allocation before it, whose recording takes a fifth of the time.

// The name is the sanitizer's.
extern "C" const char* __asan_default_options();

extern "C" const char* __asan_default_options()
{
    return "malloc_context_size=4";
}
