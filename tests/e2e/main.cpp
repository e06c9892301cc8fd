#include <iostream>

int main() {
    std::cout << "0 passed, 1 failed\n";
    return 1;
}
