#pragma once
#include "Platform/WindowTypes.h"
#include <memory>
namespace Backend {
template <typename T> WPARAM releasePayload(std::unique_ptr<T> p) { return reinterpret_cast<WPARAM>(p.release()); }
template <typename T> std::unique_ptr<T> takePayload(WPARAM w) { return std::unique_ptr<T>(reinterpret_cast<T*>(w)); }
}
