// Work on a thread with a stack of 1 MiB, as a host's thread may have it.
#pragma once

#include <gtest/gtest.h>

#include <pthread.h>

#include <cstddef>
#include <functional>

namespace test {

inline void onSmallStack(std::function<void()> work) {
  constexpr std::size_t mebibyte = 1U << 20U;
  pthread_attr_t attributes;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, mebibyte), 0);
  pthread_t thread{};
  const auto run = [](void* given) -> void* {
    (*static_cast<std::function<void()>*>(given))();
    return nullptr;
  };
  ASSERT_EQ(pthread_create(&thread, &attributes, run, &work), 0);
  EXPECT_EQ(pthread_join(thread, nullptr), 0);
  pthread_attr_destroy(&attributes);
}

} // namespace test
