#ifndef DATETIMECTRL_H
#define DATETIMECTRL_H

// The head unit's clock.
class DateTimeCtrl
{
public:
    static DateTimeCtrl *getInstance();

    void getCurrentDateTime(int &year, int &month, int &day,
                            int &hour, int &minute, int &second) const;

private:
    DateTimeCtrl();
};

#endif // DATETIMECTRL_H
