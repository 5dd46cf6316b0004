// SPDX-License-Identifier: Apache-2.0

// Read before every file that clang, or clang-tidy, compiles against libqpdf. In C++20 clang
// refuses the library's JSON.hh: an inline destructor there needs the class before it is whole.
// Nothing here uses it, so its name is all that the library's other headers need.
#define JSON_HH
class JSON {
  public:
    class Reactor;
    class Writer;
};
