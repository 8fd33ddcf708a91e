// A library of the keyboard hook's name that can do nothing.
namespace {

[[maybe_unused]] int nothing = 0;

}
