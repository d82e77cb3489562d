// Other programs' opinion of the files that Ondara writes.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

// Whether the program is there. A test that needs one that is not says so and is skipped.
inline bool hasProgram(const char* name) {
    return !QStandardPaths::findExecutable(QLatin1String(name)).isEmpty();
}

#define SKIP_WITHOUT(program) \
    if (!hasProgram(program)) \
    GTEST_SKIP() << "There is no " << (program) << " here."

// What the program prints. It runs in the folder and must succeed within a minute.
inline QByteArray outputOf(const char* name, const QStringList& arguments, const QString& folder) {
    constexpr int kPatience = 60'000;  // milliseconds
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(QLatin1String(name), arguments);
    EXPECT_TRUE(process.waitForFinished(kPatience)) << name;
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}
