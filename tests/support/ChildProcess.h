/// \file
/// Tests that would leave traces in their process, such as a file that stays open. Linux only.
#pragma once

#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace child_process
{

/// Runs \p action and ends the process without running destructors of statics: with 0 when no expectation failed and
/// nothing was thrown, else with 1 and the failed expectations on standard error.
template <class Action>
[[noreturn]] void RunAndExit(Action action)
{
  const testing::TestResult& result = *testing::UnitTest::GetInstance()->current_test_info()->result();
  const int first_part = result.total_part_count();
  try
  {
    action();
  }
  catch (const std::exception& error)
  {
    ADD_FAILURE() << "thrown: " << error.what();
  }
  catch (...)
  {
    ADD_FAILURE() << "something else than a std::exception was thrown";
  }
  int status = EXIT_SUCCESS;
  for (int i = first_part; i < result.total_part_count(); ++i)
  {
    const testing::TestPartResult& part = result.GetTestPartResult(i);
    if (part.failed())
    {
      std::fprintf(stderr, "%s:%d: %s\n", part.file_name(), part.line_number(), part.message());
      status = EXIT_FAILURE;
    }
  }
  std::_Exit(status);
}

}  // namespace child_process

/// Runs \p action, which may hold expectations, in a copy of this process; they all have to hold there, and its
/// standard error has to match the regular expression \p report.
template <class Action>
void InAProcessOfItsOwn(Action action, const char* report = "")
{
  EXPECT_EXIT(child_process::RunAndExit(action), testing::ExitedWithCode(EXIT_SUCCESS), report);
}

/// Takes from this process what lets the superuser write where its rights forbid it. Nothing changes for other users.
inline void GiveUpPrivileges()
{
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  const __user_cap_data_struct none[_LINUX_CAPABILITY_U32S_3] = {};
  ASSERT_EQ(syscall(SYS_capset, &header, none), 0);
}
