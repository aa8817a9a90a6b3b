#pragma once

#include <pthread.h>

#include <cstddef>
#include <exception>
#include <stdexcept>

constexpr std::size_t kibibyte = 1024;
constexpr std::size_t mebibyte = 1024 * kibibyte;

/// Runs `work` on a thread with a stack of that many bytes and rethrows its exception.
template <typename Work>
void onStackOf(std::size_t bytes, Work work) {
  struct Call {
    Work& work;
    std::exception_ptr failure;
  } call{work, nullptr};
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, bytes);
  pthread_t thread{};
  const int error = pthread_create(
      &thread, &attributes,
      [](void* argument) -> void* {
        auto& itsCall = *static_cast<Call*>(argument);
        try {
          itsCall.work();
        } catch (...) {
          itsCall.failure = std::current_exception();
        }
        return nullptr;
      },
      &call);
  pthread_attr_destroy(&attributes);
  if (error != 0) {
    throw std::runtime_error("no thread with such a stack");
  }
  pthread_join(thread, nullptr);
  if (call.failure) {
    std::rethrow_exception(call.failure);
  }
}
