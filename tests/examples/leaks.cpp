// What the image library and what it builds on keep until the process ends, by name; a leak of the
// program itself is none of them. Only a leak sanitizer asks for this list. It says the same as
// lsan.supp beside it, for programs that are started without that file.
extern "C" __attribute__((visibility("default"), used)) const char* __lsan_default_suppressions();
extern "C" __attribute__((visibility("default"), used)) const char* __asan_default_options();

const char* __lsan_default_suppressions()
{
    return "leak:gegl-0.4\n"
           "leak:libgobject-2.0\n"
           "leak:libglib-2.0\n"
           "leak:libbabl-0.1\n"
           "leak:libfontconfig\n"
           "leak:libpango\n"
           "leak:libcairo\n";
}

// The image library loads and unloads modules; without whole stacks, what they allocated belongs to
// nobody.
const char* __asan_default_options()
{
    return "fast_unwind_on_malloc=0";
}
