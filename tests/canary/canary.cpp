// Does what each sanitizer must tell of: proof that they are on. Run by the suite under sanitizers.

#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

volatile int sink;

void readBehindTheEnd() {
    char *bytes = new char[8]();
    sink = bytes[8 + sink];
    delete[] bytes;
}

void overflow() {
    volatile int most = INT_MAX;
    sink = most + 1;
}

void leak() {
    char *volatile lost = static_cast<char *>(std::malloc(4711));
    lost[0] = 1;
    lost = nullptr;
}

} // namespace

int main(int argc, char **argv) {
    const std::string what = argc > 1 ? argv[1] : "";
    if (what == "address")
        readBehindTheEnd();
    else if (what == "undefined")
        overflow();
    else if (what == "leak")
        leak();
    else
        return 2;
    return 0;
}
