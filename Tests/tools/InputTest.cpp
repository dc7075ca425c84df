#include <fcntl.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "FileContent.h"
#include "GzipFile.h"
#include "Input.h"
#include "TemporaryDirectory.h"

namespace vmetrics {
namespace {

using testing::IsEmpty;

/// So much that no two parts of it look alike and no buffer takes it whole.
std::string Numbers() {
  std::string text;
  for (int number = 0; text.size() < 3000000; ++number) {
    text += std::to_string(number) + '\n';
  }
  return text;
}

class InputTest : public testing::Test {
 protected:
  /// Reads to the end. Where reading fails, what came before is in `content_`, too.
  std::string ReadAll(Input& input) {
    content_.clear();
    for (std::string_view piece = input.Read(); !piece.empty(); piece = input.Read()) {
      content_ += piece;
    }
    return content_;
  }

  std::string ReadAll(const std::string& name) {
    Input input(name);
    return ReadAll(input);
  }

  /// What is said when the file is read.
  std::string ErrorOf(const std::string& name) {
    try {
      ReadAll(name);
    } catch (const InputError& error) {
      return error.what();
    }
    return "no error";
  }

  const TemporaryDirectory directory_;
  const std::string name_ = directory_ / "log";
  std::string content_;
};

TEST_F(InputTest, PlainFileIsReadAsItIs) {
  const std::string content = Numbers() + std::string("a\0b\r\n\xFF", 6);
  FileContent::Write(name_, content);
  EXPECT_EQ(ReadAll(name_), content);
}

TEST_F(InputTest, EmptyFileHasNothing) {
  FileContent::Write(name_, "");
  EXPECT_THAT(ReadAll(name_), IsEmpty());
}

TEST_F(InputTest, FileThatBeginsAlmostLikeACompressedOneIsPlain) {
  FileContent::Write(name_, "\x1F");
  EXPECT_EQ(ReadAll(name_), "\x1F");
  FileContent::Write(name_, "\x1Fx\n");
  EXPECT_EQ(ReadAll(name_), "\x1Fx\n");
}

TEST_F(InputTest, CompressedFileIsUnpacked) {
  GzipFile::Append(name_, Numbers());
  EXPECT_EQ(ReadAll(name_), Numbers());
}

TEST_F(InputTest, CompressedFileMayBeEmpty) {
  GzipFile::Append(name_, "");
  EXPECT_THAT(ReadAll(name_), IsEmpty());
}

TEST_F(InputTest, ConcatenatedCompressedFilesAreUnpacked) {
  GzipFile::Append(name_, "one\n");
  GzipFile::Append(name_, "");
  GzipFile::Append(name_, "two\n");
  EXPECT_EQ(ReadAll(name_), "one\ntwo\n");
}

TEST_F(InputTest, CompressedFileMayEndAtNoPlaceButItsEnd) {
  GzipFile::Append(name_, "one\ntwo\n");
  const std::string whole = FileContent::Read(name_);
  for (std::size_t size = 2; size < whole.size(); ++size) {
    SCOPED_TRACE(size);
    FileContent::Write(name_, whole.substr(0, size));
    EXPECT_EQ(ErrorOf(name_), name_ + ": the compressed data ends too early");
  }
}

TEST_F(InputTest, WhatComesBeforeTheEarlyEndIsGood) {
  GzipFile::Append(name_, Numbers());
  const std::string whole = FileContent::Read(name_);
  FileContent::Write(name_, whole.substr(0, whole.size() / 2));
  EXPECT_EQ(ErrorOf(name_), name_ + ": the compressed data ends too early");
  EXPECT_GT(content_.size(), 1000000U);
  EXPECT_EQ(content_, Numbers().substr(0, content_.size()));
}

TEST_F(InputTest, EarlyEndOfALaterCompressedFileIsNoticed) {
  GzipFile::Append(name_, "one\n");
  const std::size_t first = FileContent::Read(name_).size();
  GzipFile::Append(name_, "two\n");
  FileContent::Write(name_, FileContent::Read(name_).substr(0, first + 10));
  EXPECT_EQ(ErrorOf(name_), name_ + ": the compressed data ends too early");
  EXPECT_EQ(content_, "one\n");
}

TEST_F(InputTest, DamagedCompressedFileIsNoticed) {
  GzipFile::Append(name_, "one\ntwo\n");
  const std::string whole = FileContent::Read(name_);
  constexpr std::size_t kHeader = 10;
  for (std::size_t at = kHeader; at < whole.size(); ++at) {
    SCOPED_TRACE(at);
    std::string damaged = whole;
    damaged[at] = static_cast<char>(~damaged[at]);
    FileContent::Write(name_, damaged);
    EXPECT_THAT(ErrorOf(name_), testing::StartsWith(name_ + ": the compressed data "));
  }
}

TEST_F(InputTest, OtherContentBehindTheCompressedIsNoticed) {
  GzipFile::Append(name_, "one\n");
  const std::string first = FileContent::Read(name_);
  for (const char* rest : {"two\n", "\x1F", "\n"}) {
    SCOPED_TRACE(rest);
    FileContent::Write(name_, first + rest);
    EXPECT_EQ(ErrorOf(name_), name_ + ": behind the compressed data, at byte " +
                                  std::to_string(first.size()) +
                                  ", is something else, which is not read");
    EXPECT_EQ(content_, "one\n");
  }
}

TEST_F(InputTest, UnknownCompressionIsNoticed) {
  FileContent::Write(name_, std::string("\x1F\x8B\x09\0\0\0\0\0\0\x03", 10));
  EXPECT_EQ(ErrorOf(name_), name_ + ": the compressed data is damaged");
}

TEST_F(InputTest, MissingFileIsAnError) {
  EXPECT_EQ(ErrorOf(name_), name_ + ": No such file or directory");
}

TEST_F(InputTest, EmptyNameIsAnError) {
  EXPECT_EQ(ErrorOf(""), R"("": No such file or directory)");
}

TEST_F(InputTest, DirectoryIsAnError) {
  EXPECT_EQ(ErrorOf(directory_.Path()), directory_.Path() + ": Is a directory");
}

TEST_F(InputTest, FileThatIsDeletedMeanwhileIsReadToItsEnd) {
  FileContent::Write(name_, Numbers());
  Input input(name_);
  std::filesystem::remove(name_);
  EXPECT_EQ(ReadAll(input), Numbers());
}

TEST_F(InputTest, FileThatGrowsMeanwhileIsReadToItsNewEnd) {
  FileContent::Write(name_, "one\n");
  Input input(name_);
  FileContent::Write(name_, "one\ntwo\n");
  EXPECT_EQ(ReadAll(input), "one\ntwo\n");
}

TEST_F(InputTest, NameIsAsGiven) {
  FileContent::Write(name_, "");
  EXPECT_EQ(Input(name_).Name(), name_);
  EXPECT_EQ(Input("-").Name(), "standard input");
}

TEST_F(InputTest, SizeAndPositionAreThoseOnTheDisk) {
  GzipFile::Append(name_, Numbers());
  const std::size_t size = FileContent::Read(name_).size();
  Input input(name_);
  EXPECT_EQ(input.Size(), size);
  EXPECT_EQ(input.Position(), 0U);
  ReadAll(input);
  EXPECT_EQ(input.Position(), size);
}

TEST_F(InputTest, DescriptorsAreClosed) {
  FileContent::Write(name_, "one\n");
  const int before = dup(STDIN_FILENO);
  close(before);
  ReadAll(name_);
  ErrorOf(directory_.Path());
  const int after = dup(STDIN_FILENO);
  close(after);
  EXPECT_EQ(after, before);
}

/// With a file for standard input.
class StandardInputTest : public InputTest {
 protected:
  ~StandardInputTest() override {
    dup2(saved_, STDIN_FILENO);
    close(saved_);
  }

  void Redirect(const std::string& name) {
    const int descriptor = open(name.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_GE(descriptor, 0);
    dup2(descriptor, STDIN_FILENO);
    close(descriptor);
  }

 private:
  const int saved_ = dup(STDIN_FILENO);
};

TEST_F(StandardInputTest, IsReadAndStaysOpen) {
  GzipFile::Append(name_, "one\n");
  Redirect(name_);
  EXPECT_EQ(ReadAll("-"), "one\n");
  EXPECT_EQ(lseek(STDIN_FILENO, 0, SEEK_CUR), lseek(STDIN_FILENO, 0, SEEK_END));
}

TEST_F(StandardInputTest, ErrorsNameIt) {
  Redirect(directory_.Path());
  EXPECT_EQ(ErrorOf("-"), "standard input: Is a directory");
  close(STDIN_FILENO);
  EXPECT_EQ(ErrorOf("-"), "standard input: Bad file descriptor");
}

TEST_F(StandardInputTest, PipeHasNoSize) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  ASSERT_EQ(write(ends[1], "one\n", 4), 4);
  close(ends[1]);
  dup2(ends[0], STDIN_FILENO);
  close(ends[0]);
  Input input("-");
  EXPECT_EQ(input.Size(), 0U);
  EXPECT_EQ(ReadAll(input), "one\n");
}

}  // namespace
}  // namespace vmetrics
