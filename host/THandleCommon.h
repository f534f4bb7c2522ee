#pragma once

/// What all handles share, whatever they point to.
class THandleCommon {
public:
    /// Called when a null handle is dereferenced; throws and never returns.
    /// The default host throws std::runtime_error "null handle error".
    [[noreturn]] static void null_handle_error();
};
