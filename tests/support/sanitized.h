// Tells the tests whether the address sanitizer is active; compilers report it in two ways.
#pragma once

#ifdef __has_feature
#    if __has_feature(address_sanitizer)
#        define WATCHED_FOR_ADDRESSES
#    endif
#elif defined __SANITIZE_ADDRESS__
#    define WATCHED_FOR_ADDRESSES
#endif
