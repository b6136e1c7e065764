#ifndef DATAIDINFO_H
#define DATAIDINFO_H

// A record without fields, kept for the interface of the CAN-bus module.
class DataIdInfo
{
public:
    DataIdInfo();
    DataIdInfo(DataIdInfo const &other);
    ~DataIdInfo();
};

#endif // DATAIDINFO_H
