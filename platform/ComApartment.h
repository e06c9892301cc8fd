#pragma once

// The calling thread's single-threaded apartment, from OleInitialize to OleUninitialize.
class ComApartment {
public:
    // Throws RuntimeError when the thread is in another kind of apartment already.
    ComApartment();
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment();
};
