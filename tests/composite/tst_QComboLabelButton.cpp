#include "QComboLabelButton.h"
#include "VelaTest.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

class tst_QComboLabelButton : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void captionIsTheInnerLabel();
    void crossEmitsDeleteOnceWithoutTakingFocus();
    void crossShowsHostIcon();
    void pixmapGoesToCaption();
};

void tst_QComboLabelButton::form()
{
    QComboLabelButton tag(QStringLiteral("Jaw Open"));
    QCOMPARE(tag.objectName(), QStringLiteral("qtComboLabelButton"));
    QCOMPARE(tag.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(tag.size(), QSize(188, 33));
    QCOMPARE(tag.minimumSize(), QSize(10, 0));
    QCOMPARE(tag.styleSheet(),
             QStringLiteral("QWidget#qtComboLabelButton{ padding-left: 3px;padding-right: 3px; "
                            "background-color: #1c1c1c; }"));
    auto *layout = qobject_cast<QHBoxLayout *>(tag.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->sizeConstraint(), QLayout::SetMinimumSize);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));

    auto *label = tag.findChild<QLabel *>(QStringLiteral("qtLabel"));
    auto *cross = tag.findChild<QToolButton *>(QStringLiteral("qtDeleteButton"));
    QVERIFY(label);
    QVERIFY(cross);
    QCOMPARE(label->font().pointSize(), 8);
    QCOMPARE(label->margin(), 2);
    QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QVERIFY(!label->hasScaledContents());
    QCOMPARE(cross->minimumSize(), QSize(17, 17));
    QCOMPARE(cross->maximumSize(), QSize(17, 17));
    QCOMPARE(cross->iconSize(), QSize(10, 10));
    QCOMPARE(cross->text(), QStringLiteral("..."));
    QCOMPARE(cross->focusPolicy(), Qt::NoFocus);
    // The caption comes first, then the cross, in the innermost row.
    auto *row = tag.findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout_2"));
    QVERIFY(row);
    QCOMPARE(row->indexOf(label), 0);
    QCOMPARE(row->indexOf(cross), 1);
}

void tst_QComboLabelButton::captionIsTheInnerLabel()
{
    QComboLabelButton tag(QStringLiteral("Brow Raise"));
    QCOMPARE(tag.GetLabelText(), QStringLiteral("Brow Raise"));
    QVERIFY(tag.text().isEmpty());
    QComboLabelButton empty(QString {});
    QVERIFY(empty.GetLabelText().isEmpty());
}

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
}

void tst_QComboLabelButton::crossShowsHostIcon()
{
    QComboLabelButton tag(QStringLiteral("Blink"));
    tag.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tag));
    auto *cross = tag.findChild<QToolButton *>(QStringLiteral("qtDeleteButton"));
    const QImage shot = cross->grab().toImage();
    QCOMPARE(shot.pixelColor(cross->rect().center()), QColor(0xd0, 0xd0, 0xd0));
}

void tst_QComboLabelButton::pixmapGoesToCaption()
{
    QComboLabelButton tag(QStringLiteral("Viseme"));
    QPixmap pixmap(12, 12);
    pixmap.fill(Qt::green);
    tag.SetPixmapToLabel(pixmap);
    auto *label = tag.findChild<QLabel *>(QStringLiteral("qtLabel"));
    QCOMPARE(label->pixmap(Qt::ReturnByValue).size(), QSize(12, 12));
    QVERIFY(tag.pixmap(Qt::ReturnByValue).isNull());
}

VELA_TEST_CLASS(tst_QComboLabelButton)
#include "tst_QComboLabelButton.moc"
