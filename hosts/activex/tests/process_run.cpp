#include "process_run.h"

#include <vector>

#include "com_includes.h"

namespace vorlex::activex::test {

ProcessResult RunProcess(const std::wstring& commandLine) {
  ProcessResult result;
  SECURITY_ATTRIBUTES inherit{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  HANDLE readEnd = nullptr;
  HANDLE writeEnd = nullptr;
  if (!CreatePipe(&readEnd, &writeEnd, &inherit, 0)) return result;
  SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = writeEnd;
  startup.hStdError = writeEnd;
  startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  PROCESS_INFORMATION process{};
  std::vector<wchar_t> line(commandLine.begin(), commandLine.end());
  line.push_back(L'\0');
  result.started = CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr,
                                  &startup, &process) != FALSE;
  CloseHandle(writeEnd);
  if (result.started) {
    char buffer[4096];
    DWORD got = 0;
    while (ReadFile(readEnd, buffer, sizeof buffer, &got, nullptr) && got > 0) result.output.append(buffer, got);
    WaitForSingleObject(process.hProcess, 120000);
    GetExitCodeProcess(process.hProcess, &result.exitCode);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
  }
  CloseHandle(readEnd);
  return result;
}

}  // namespace vorlex::activex::test
