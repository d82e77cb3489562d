// The pages of a file, read one by one.
#include "store/jet/jet_pages.h"

#include <gtest/gtest.h>

#include <QBuffer>

#include "store/jet/jet_errors.h"
#include "support/jet_builder.h"
#include "support/printing.h"

namespace {

// Bytes that cannot be read any more when somebody says so.
class FailingBuffer : public QBuffer {
  public:
    explicit FailingBuffer(const QByteArray& bytes) {
        setData(bytes);
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    void fail() { fails_ = true; }

  protected:
    qint64 readData(char* data, qint64 size) override {
        if (!fails_)
            return QBuffer::readData(data, size);
        setErrorString(QStringLiteral("The disk is gone"));
        return -1;
    }

  private:
    bool fails_ = false;
};

// A file of that many bytes, of which the first can be read.
class HugeBuffer : public QBuffer {
  public:
    HugeBuffer(const QByteArray& bytes, qint64 size) : size_(size) {
        setData(bytes);
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    qint64 size() const override { return size_; }

  private:
    qint64 size_;
};

// A file with many pages behind those of a database; each is of rows and begins with its number.
class JetPagesTest : public testing::TestWithParam<int> {
  protected:
    static constexpr std::uint32_t kMore = 200;

    JetPagesTest() {
        BuiltJet jet = builtJet(GetParam(), {});
        first_ = static_cast<std::uint32_t>(jet.bytes.size() / jet.pageSize);
        for (std::uint32_t i = 0; i < kMore; ++i) {
            QByteArray page(jet.pageSize, '\0');
            page[0] = 1;
            page[1] = static_cast<char>(i);
            jet.bytes += page;
        }
        auto buffer = std::make_unique<FailingBuffer>(jet.bytes);
        buffer_ = buffer.get();
        pages_.emplace(std::move(buffer), QStringLiteral("name"));
    }

    QByteArray page(std::uint32_t number) {
        return pages_->page(first_ + number, JetPageType::Rows);
    }

    template <class Steps>
    QString failureOf(Steps&& steps) {
        try {
            steps();
            return {};
        } catch (const JetFailure& failure) {
            return failure.cause;
        }
    }

    std::uint32_t first_ = 0;
    FailingBuffer* buffer_ = nullptr;
    std::optional<JetPages> pages_;
};

INSTANTIATE_TEST_SUITE_P(JetPages, JetPagesTest, testing::Values(3, 4));

}  // namespace

TEST_P(JetPagesTest, AreReadWhole) {
    EXPECT_EQ(page(7).size(), pages_->format().pageSize);
    EXPECT_EQ(pages_->path(), QStringLiteral("name"));
    EXPECT_EQ(pages_->bytes(), buffer_->size());
}

TEST_P(JetPagesTest, AreTheRightOnesHoweverManyAreRead) {
    for (int round = 0; round < 2; ++round) {
        for (std::uint32_t i = 0; i < kMore; ++i)
            ASSERT_EQ(page(i)[1], static_cast<char>(i)) << i;
    }
}

TEST_P(JetPagesTest, AreKeptForAWhile) {
    const QByteArray before = page(7);
    buffer_->fail();
    EXPECT_EQ(page(7), before);
}

TEST_P(JetPagesTest, MustBeOfTheirKind) {
    EXPECT_EQ(failureOf([&] { pages_->page(2, JetPageType::Rows); }),
              QStringLiteral("the file is damaged, page 2 is not of the kind that it should be"));
    EXPECT_EQ(failureOf([&] { pages_->page(2, JetPageType::Definition); }), QString());
}

TEST_P(JetPagesTest, EndWhereTheFileEnds) {
    EXPECT_EQ(failureOf([&] { page(kMore - 1); }), QString());
    EXPECT_EQ(
        failureOf([&] { page(kMore); }),
        QStringLiteral("the file is damaged, page %1 lies beyond its end").arg(first_ + kMore));
    EXPECT_NE(failureOf([&] { pages_->page(0xFFFFFFFF, JetPageType::Rows); }), QString());
}

TEST_P(JetPagesTest, AreNoMoreThanPointersCanTellApart) {
    const QByteArray bytes = builtJet(GetParam(), {}).bytes;
    const qint64 most = (qint64{1} << 24) * pages_->format().pageSize;
    const auto open = [&bytes](qint64 size) {
        JetPages(std::make_unique<HugeBuffer>(bytes, size), QStringLiteral("name"));
    };
    EXPECT_EQ(failureOf([&] { open(most); }), QString());
    EXPECT_EQ(failureOf([&] { open(most + pages_->format().pageSize); }),
              QStringLiteral("the file is damaged, it is larger than a Jet file can be"));
}

TEST_P(JetPagesTest, ThatTheSystemDoesNotReadRaiseItsError) {
    buffer_->fail();
    try {
        page(3);
        FAIL();
    } catch (const JetFailure& failure) {
        EXPECT_EQ(failure.number, ErrorNumber::DeviceIo);
        EXPECT_EQ(failure.cause, QStringLiteral("The disk is gone"));
    }
}
