#ifndef GALLERYWINDOW_H
#define GALLERYWINDOW_H

#include "GalleryRegistry.h"

#include <QMainWindow>
#include <QTemporaryDir>

class QListWidget;
class QListWidgetItem;
class QPlainTextEdit;
class QStackedWidget;

// The gallery window: the list of pages on the left, the chosen widget with its description and
// the live event log on the right. Pages are built the first time they are shown.
class GalleryWindow : public QMainWindow, public GalleryContext
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    QString sampleDir() const override;
    void log(const QString &line) override;
    QWidget *mainWindow() const override;

    // Writes one PNG per page into dir, each file named after the page plus suffix; returns the
    // number of pictures that could not be written.
    int writeScreenshots(const QString &dir, const QString &suffix);
    // Writes a picture of the whole window showing the named page; false when it could not.
    bool writeWindowShot(const QString &file, const QString &pageName);

    static const char *styleSheetText();

private:
    void showEntry(QListWidgetItem *item);
    QWidget *createPage(const GalleryEntry &entry);

    QTemporaryDir m_samples;
    QVector<GalleryEntry> m_entries;
    QVector<QWidget *> m_pageWidgets;
    QListWidget *m_list = nullptr;
    QStackedWidget *m_pages = nullptr;
    QPlainTextEdit *m_log = nullptr;
};

#endif // GALLERYWINDOW_H
