#include "QComboLabelButton.h"
#include "VelaTest.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

class tst_QComboLabelButton : public QObject
{
    Q_OBJECT

private slots:
    void captionIsTheInnerLabel();
    void crossEmitsDeleteOnceWithoutTakingFocus();
};

void tst_QComboLabelButton::crossEmitsDeleteOnceWithoutTakingFocus()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *edit = new QLineEdit(&window);
    auto *tag = new QComboLabelButton(QStringLiteral("Smile"), &window);
    layout->addWidget(edit);
    layout->addWidget(tag);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edit->setFocus();
    QTRY_VERIFY(edit->hasFocus());

    QSignalSpy deleted(tag, &QComboLabelButton::Delete);
    auto *cross = tag->findChild<QToolButton *>(QStringLiteral("qtDeleteButton"));
    QTest::mouseClick(cross, Qt::LeftButton);
    QCOMPARE(deleted.count(), 1);
    QVERIFY(edit->hasFocus());
    // A click on the caption is not a delete.
    QTest::mouseClick(tag->findChild<QLabel *>(QStringLiteral("qtLabel")), Qt::LeftButton);
    QCOMPARE(deleted.count(), 1);
    // The cross shows the host's icon.
    QCOMPARE(cross->grab().toImage().pixelColor(cross->rect().center()), QColor(0xd0, 0xd0, 0xd0));
}

// Text and pixmap go to the inner caption, not to the tag itself.
void tst_QComboLabelButton::captionIsTheInnerLabel()
{
    QComboLabelButton tag(QStringLiteral("Brow Raise"));
    auto *label = tag.findChild<QLabel *>(QStringLiteral("qtLabel"));
    QCOMPARE(tag.GetLabelText(), QStringLiteral("Brow Raise"));
    QVERIFY(tag.text().isEmpty());
    QPixmap pixmap(12, 12);
    pixmap.fill(Qt::green);
    tag.SetPixmapToLabel(pixmap);
    QCOMPARE(label->pixmap(Qt::ReturnByValue).size(), QSize(12, 12));
    QVERIFY(tag.pixmap(Qt::ReturnByValue).isNull());
}

VELA_TEST_CLASS(tst_QComboLabelButton)
#include "tst_QComboLabelButton.moc"
