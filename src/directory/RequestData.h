#pragma once

#include <QString>

// What the request forms of other applications collect before a request is written. Plain data; an empty text stands
// for "not given".

// The request itself: one for the whole program.
class clsRequestInfo {
 public:
  QString DefaultRequestSourceDesc, DefaultPublicationTypeDesc, DefaultServiceTypeDesc, DefaultServiceLevelDesc;
  QString SystemServiceID;
  QString DateSubmitted;  // "yyyy-MM-dd", with or without a time; empty: now
  bool CmdOkCliked = false;
  QString ISBN, ISBN_2, Publisher, PublicationPlace, SeriesTitle, Edition, Title, Author, ISSN, ISSN_2;
  QString TitleOfArticle, AuthorOfArticle, Pages, Volume, Issue, TitleOfJournal;
  QString InfoSource, CallNumber, AddNumsLetters, SystemNum, BibliographyNum, PublicationDate, SystemSource;
  QString BibliographyType, RequestSource, ServiceType, ServiceLevel, PublicationType;
};

// The patron on whose behalf a request is placed.
class clsAddRequestPat {
 public:
  bool NotifyLibrary = false, RetainPatron = false, CmdOkCliked = false, NewPatronIDValid = false;
  QString Phone, DepartmentDescription, FirstName, patronID, FileFormat, PatrondocView;
  QString RequestInfoNotes, RequestInfoNumber;
  QString PatronDeliverymethodDescription, PatronDeliveryMethodAddress, PatronDeliveryMethod;
  QString Surname, PatronFaxNumber, PatronPickupLocation, PatronEmailAddress, PatronArielAddress;
  QString PatronZipPostalCode, PatronCountry, PatronStateProvince, PatronCity, PatronStreet2, PatronStreet1;
  QString PatronBranch, PatronDepartment;
};
