#include "VelaTest.h"
#include "VelaVector.h"

#include <QMetaType>
#include <QSignalSpy>
#include <QVariant>
#include <QtTest>

#include <limits>

// Receives a packed value through a queued connection, as a host in another thread would.
class VectorReceiver : public QObject
{
    Q_OBJECT

public:
    Vela::CVector4f received;
    int calls = 0;

signals:
    void Send(Vela::CVector4f vValue);

public slots:
    void Receive(Vela::CVector4f vValue)
    {
        received = vValue;
        ++calls;
    }
};

class tst_CVector4 : public QObject
{
    Q_OBJECT

private slots:
    void components();
    void nonFiniteComponents();
    void metaType();
    void queuedConnection();
};

void tst_CVector4::components()
{
    QCOMPARE(sizeof(Vela::CVector4f), 4 * sizeof(float));
    QVERIFY(Vela::CVector4f() == Vela::CVector4f(0, 0, 0, 0));
    Vela::CVector4f v(1.5f, -2.0f, 3.25f, 4.0f);
    QCOMPARE(v[0], 1.5f);
    QCOMPARE(v[1], -2.0f);
    QCOMPARE(v[3], 4.0f);
    v.Set(2, 9.0f);
    QCOMPARE(v.z, 9.0f);
    QVERIFY(v != Vela::CVector4f(1.5f, -2.0f, 3.25f, 4.0f));
    // Indices outside 0 to 3 read 0 and write nothing.
    QCOMPARE(v[-1], 0.0f);
    QCOMPARE(v[4], 0.0f);
    v.Set(4, 7.0f);
    v.Set(-1, 7.0f);
    QVERIFY(v == Vela::CVector4f(1.5f, -2.0f, 9.0f, 4.0f));
}

void tst_CVector4::nonFiniteComponents()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    const Vela::CVector4f v(nan, inf, -inf, 0.0f);
    QVERIFY(v != v); // a NaN component never compares equal
    QVariant variant = QVariant::fromValue(v);
    QVERIFY(qIsInf(variant.value<Vela::CVector4f>().z));
}

void tst_CVector4::metaType()
{
    const int id = qMetaTypeId<Vela::CVector4f>();
    QCOMPARE(QByteArray(QMetaType::typeName(id)), QByteArray("Vela::CVector4f"));
    QCOMPARE(QMetaType::type("Vela::CVector4f"), id);
    QCOMPARE(qMetaTypeId<Vela::CVector4<float>>(), id);
    const Vela::CVector4f v(0.25f, 0.5f, 0.75f, 1.0f);
    QVERIFY(QVariant::fromValue(v).value<Vela::CVector4f>() == v);

    VectorReceiver receiver;
    QSignalSpy spy(&receiver, &VectorReceiver::Send);
    emit receiver.Send(v);
    QCOMPARE(spy.count(), 1);
    QVERIFY(spy.at(0).at(0).value<Vela::CVector4f>() == v);
}

void tst_CVector4::queuedConnection()
{
    VectorReceiver receiver;
    connect(&receiver, &VectorReceiver::Send, &receiver, &VectorReceiver::Receive,
            Qt::QueuedConnection);
    QVERIFY(QObject::connect(&receiver, SIGNAL(Send(Vela::CVector4f)), &receiver,
                             SLOT(Receive(Vela::CVector4f)), Qt::QueuedConnection));
    emit receiver.Send(Vela::CVector4f(1, 2, 3, 4));
    QCOMPARE(receiver.calls, 0);
    QTRY_COMPARE(receiver.calls, 2);
    QVERIFY(receiver.received == Vela::CVector4f(1, 2, 3, 4));
}

VELA_TEST_CLASS(tst_CVector4)
#include "tst_CVector4.moc"
