class C : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int a READ a NOTIFY changed)
    Q_PROPERTY(int b READ b)
public:
    C() { REPORT_ERROR("1"); }
    Q_INVOKABLE void f() { REPORT_ERROR("2"); }
Q_SIGNALS:
    void changed();
public slots:
    void g() { REPORT_ERROR("3"); }
signals:
    Q_DISABLE_COPY(C)
    ~C() { REPORT_ERROR("4"); }
    Q_ENUM(E)
    C(int a) : QObject(nullptr), m_a{a} { REPORT_ERROR("5"); }
    int bits : 3;
    Q_DECLARE_FLAGS(F, E) public: void h() { REPORT_ERROR("6"); }
};
