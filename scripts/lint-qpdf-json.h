// Read before every file that scripts/lint shows to clang-tidy. In C++20 clang 14 refuses libqpdf's
// JSON.hh: an inline destructor there needs the class before it is whole. Nothing here uses it, so
// its name is all that the library's other headers need.
#define JSON_HH
class JSON {
  public:
    class Reactor;
};
