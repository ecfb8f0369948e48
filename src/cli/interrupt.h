#pragma once

namespace zentrik::cli {

// While one of these lives, Ctrl+C or the end of the session is a wish that the command looks for.
class Interrupt {
public:
    Interrupt();
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

    static bool came();
    // Throws a Failure if it came.
    static void check();

private:
    using Handler = void (*)(int);
    Handler interrupt_, terminate_;
};

}  // namespace zentrik::cli
