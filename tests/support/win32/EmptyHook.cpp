// A library with the keyboard hook's name and none of its functions.
namespace {

[[maybe_unused]] int nothing = 0;

}
