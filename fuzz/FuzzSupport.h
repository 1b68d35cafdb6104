#ifndef FUZZSUPPORT_H
#define FUZZSUPPORT_H

#include <QByteArray>
#include <QString>
#include <QVector>

#include "VelaWidgetCatalog.h"
#include <cstddef>
#include <cstdint>

namespace VelaFuzz {

// Reads typed values from the fuzzer's bytes; past the end it yields zeros.
class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size)
        : m_data(data)
        , m_size(size)
    { }

    bool atEnd() const { return m_pos >= m_size; }
    std::uint8_t byte() { return atEnd() ? 0 : m_data[m_pos++]; }
    bool boolean() { return byte() & 1; }
    int integer(); // mostly small values, sometimes extremes
    double real(); // includes NaN, infinities and huge values
    int index(int count) { return count > 0 ? int(byte()) % count : 0; }
    QByteArray bytes(int maximum);
    QString text(int maximum);

private:
    const std::uint8_t *m_data;
    std::size_t m_size;
    std::size_t m_pos = 0;
};

// Creates the QApplication once (offscreen platform).
void EnsureApplication();

// Brackets one run. It creates the application on first use and, once the run's own objects are
// gone, delivers what they posted and deletes what they scheduled for deletion: there is no event
// loop between runs, and anything left over would pile up and slow every later run.
class RunScope
{
public:
    RunScope() { EnsureApplication(); }
    ~RunScope();
    RunScope(const RunScope &) = delete;
    RunScope &operator=(const RunScope &) = delete;
};

// The run's bytes as a file, removed again at the end of the run. Every run writes a file of a
// new name: QSettings caches what it read per path.
class RunFile
{
public:
    RunFile(const std::uint8_t *data, std::size_t size);
    ~RunFile();
    RunFile(const RunFile &) = delete;
    RunFile &operator=(const RunFile &) = delete;

    bool isWritten() const { return m_written; }
    const QString &path() const { return m_path; }

private:
    QString m_path;
    bool m_written = false;
};

} // namespace VelaFuzz

#endif // FUZZSUPPORT_H
