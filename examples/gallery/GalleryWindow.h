#ifndef GALLERYWINDOW_H
#define GALLERYWINDOW_H

#include "GalleryRegistry.h"

#include <QMainWindow>
#include <QTemporaryDir>

class QListWidget;
class QPlainTextEdit;
class QStackedWidget;

// The gallery window: the list of pages on the left, the chosen widget with its description and
// the live event log on the right.
class GalleryWindow : public QMainWindow, public GalleryContext
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    QString sampleDir() const override;
    void log(const QString &line) override;
    QWidget *mainWindow() const override;

    // Writes one PNG per page into dir; returns the number of failures.
    int writeScreenshots(const QString &dir);

private:
    QWidget *createPage(const GalleryEntry &entry, QWidget **shown);

    QTemporaryDir m_samples;
    QVector<GalleryEntry> m_entries;
    QVector<QWidget *> m_widgets;
    QListWidget *m_list = nullptr;
    QStackedWidget *m_pages = nullptr;
    QPlainTextEdit *m_log = nullptr;
};

#endif // GALLERYWINDOW_H
