// Our own ends of the standard library's failure functions. The library's bring its exception
// texts, its reference-counted strings and the symbol demangler into every program: 90 KB each,
// where the whole runtime has to fit on a floppy disk. What is thrown stays a std::exception.
#include <windows.h>

#include <exception>
#include <new>

namespace {

class LibraryFailure : public std::exception {
public:
    explicit LibraryFailure(const char* what) : what_(what) {}
    const char* what() const noexcept override { return what_; }

private:
    const char* what_;
};

} // namespace

namespace std {

void __throw_bad_alloc()
{
    throw bad_alloc();
}
void __throw_bad_array_new_length()
{
    throw bad_array_new_length();
}
void __throw_bad_function_call()
{
    throw LibraryFailure("call of an empty function");
}
void __throw_length_error(const char* what)
{
    throw LibraryFailure(what);
}
void __throw_logic_error(const char* what)
{
    throw LibraryFailure(what);
}
void __throw_invalid_argument(const char* what)
{
    throw LibraryFailure(what);
}
void __throw_out_of_range(const char* what)
{
    throw LibraryFailure(what);
}
void __throw_out_of_range_fmt(const char* what, ...)
{
    throw LibraryFailure(what);
}

} // namespace std

namespace __gnu_cxx {

// Called where an exception is not caught. The code is the one of a program that aborted.
void __verbose_terminate_handler()
{
    ExitProcess(3);
}

} // namespace __gnu_cxx
