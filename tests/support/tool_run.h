#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

#include "support/temporary_folder.h"

namespace vigrel::testing {

// What a command-line program of the build printed and how it ended.
struct cToolRun {
    int exitCode = -1;
    std::string output, errors;
};

// A folder in which such a program runs, with words as a shell takes them. It prints into out.txt and
// errors.txt.
class cToolFolder {
  public:
    explicit cToolFolder(std::string program) : m_Program(std::move(program)) {}

    // Standard error has to stay empty.
    cToolRun Run(const std::string& arguments) const {
        cToolRun run = RunTelling(arguments);
        EXPECT_EQ(run.errors, "") << arguments;
        return run;
    }
    // The test knows what is told on standard error.
    cToolRun RunTelling(const std::string& arguments, const std::string& output = "out.txt") const {
        const std::string command = "cd '" + m_Folder.Path().string() + "' && " + m_Program + " " +
                                    arguments + " >" + output + " 2>errors.txt";
        const int status = std::system(command.c_str());
        return {WEXITSTATUS(status), Content("out.txt"), Content("errors.txt")};
    }
    std::string Content(const std::string& name) const {
        std::ifstream file(m_Folder.Path() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    cTemporaryFolder m_Folder;

  private:
    std::string m_Program;
};

}  // namespace vigrel::testing
