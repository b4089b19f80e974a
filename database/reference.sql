-- The rows that every site begins with. Descriptions are written in the default language, English; the columns of the
-- languages take them over afterwards. Codes that the world has agreed on are the real ones.

INSERT INTO ID_NEXT_LIBRARY (NEXT_LIBRARY) VALUES (10000000);
INSERT INTO ID_NEXT_REQUEST (NEXT_REQUEST) VALUES (1);

INSERT INTO ID_LANGUAGE_CODE (LANGUAGE_CODE, LANGUAGE_CODE_DESC, LANGUAGE_CODE_DEFAULT) VALUES
  ('ENG', 'English', 'Y');

-- F: add, update, delete. A: add and update. U: update. O: look only.
INSERT INTO ID_TABLES (TABLES, TABLES_DESC, VIEW_ONLY_FLAG) VALUES
  ('ID_ACCESS_GROUP', 'Access groups', 'F'),
  ('ID_ACK_STATEMENT', 'Acknowledgement statements', 'F'),
  ('ID_BIBLIOGRAPHY', 'Bibliographies', 'F'),
  ('ID_BILLING_TYPE', 'Billing types', 'F'),
  ('ID_CATALOG_CODE', 'Catalogues', 'F'),
  ('ID_CREDIT_CARD', 'Credit cards', 'F'),
  ('ID_CUSTOMER_ID', 'Customer ids', 'F'),
  ('ID_EVENT', 'Events of the request flow', 'U'),
  ('ID_EXCEPTION_CODE', 'Exception descriptions', 'U'),
  ('ID_EXCEPTION_TYPE', 'Exception types', 'U'),
  ('ID_FILE_FORMAT', 'File formats', 'F'),
  ('ID_ILL_SYSTEM', 'ILL systems', 'F'),
  ('ID_ISO_UNFILLED', 'ISO reasons of unfilled requests', 'A'),
  ('ID_ISO18626_AUTHN_TYPE', 'ISO 18626 authentication', 'O'),
  ('ID_ISO18626_CONNECT_TYPE', 'ISO 18626 connection types', 'O'),
  ('ID_ISO18626_VERSION', 'ISO 18626 versions', 'O'),
  ('ID_LANGUAGE_CODE', 'Languages', 'U'),
  ('ID_LIBRARY_CAT', 'Library categories', 'F'),
  ('ID_LIBRARY_TYPE', 'Library types', 'F'),
  ('ID_MSG_FORMAT', 'Message formats', 'F'),
  ('ID_NCIP_CONNECT_TYPE', 'NCIP connection types', 'O'),
  ('ID_NCIP_ILS_SYSTEM', 'NCIP library systems', 'F'),
  ('ID_OUTPUT_FORMAT', 'Output formats', 'F'),
  ('ID_PATRON_TYPE', 'Patron types', 'F'),
  ('ID_PROCESS_TYPE', 'Process types', 'U'),
  ('ID_PUBLICATION_TYPE', 'Publication types', 'F'),
  ('ID_REQUEST_SRC', 'Request sources', 'F'),
  ('ID_SERVICE_LEVEL', 'Service levels', 'F'),
  ('ID_SERVICE_TYPE', 'Service types', 'F'),
  ('ID_STATS_CAT_LIB', 'Statistics categories of libraries', 'F'),
  ('ID_SYSTEM_SOURCE', 'System sources', 'F'),
  ('ID_VORN_SERVICE', 'VORN services', 'A');

-- M, mail, is the method that every screen falls back to; P is offered to patrons only.
INSERT INTO ID_DELIV_METHOD (DELIV_METHOD, DELIV_METHOD_DESC, ACTIVE_FLAG, PRINT_FLAG, WEB_FLAG) VALUES
  ('A', 'Ariel', 'Y', NULL, NULL),
  ('C', 'Delivery service', 'Y', 'Y', NULL),
  ('E', 'E-mail', 'Y', NULL, 'Y'),
  ('F', 'Fax', 'Y', 'Y', NULL),
  ('M', 'Mail', 'Y', 'Y', 'Y'),
  ('O', 'Odyssey', 'Y', NULL, NULL),
  ('P', 'Pickup', 'Y', 'Y', 'Y'),
  ('S', 'Secure electronic', 'Y', NULL, 'Y'),
  ('V', 'Docview', NULL, NULL, NULL),
  ('W', 'Web link', 'Y', NULL, 'Y');

INSERT INTO ID_MSG_METHOD (MSG_METHOD, MSG_METHOD_DESC, ACTIVE_FLAG, PRINT_FLAG, WEB_FLAG) VALUES
  ('A', 'Ariel', 'Y', NULL, NULL),
  ('C', 'Delivery service', 'Y', 'Y', NULL),
  ('E', 'E-mail', 'Y', NULL, 'Y'),
  ('F', 'Fax', 'Y', 'Y', NULL),
  ('M', 'Mail', 'Y', 'Y', 'Y'),
  ('V', 'Docview', NULL, NULL, NULL),
  ('W', 'Web', 'Y', NULL, 'Y');

INSERT INTO ID_REQ_METHOD (REQ_METHOD, REQ_METHOD_DESC, ACTIVE_FLAG) VALUES
  ('8', 'ISO 18626', 'Y'),
  ('A', 'API', 'Y'),
  ('E', 'E-mail', 'Y'),
  ('I', 'ISO ILL', 'Y'),
  ('M', 'Mail', 'Y'),
  ('W', 'Web form of the supplier', NULL);

INSERT INTO ID_FILE_FORMAT (FILE_FORMAT, FILE_FORMAT_DESC) VALUES
  ('J', 'JPEG images'),
  ('P', 'PDF'),
  ('T', 'TIFF, several pages');

INSERT INTO ID_MSG_FORMAT (MSG_FORMAT, MSG_FORMAT_DESC) VALUES
  ('H', 'HTML'),
  ('P', 'PDF attachment'),
  ('T', 'Plain text');

INSERT INTO ID_OUTPUT_FORMAT (OUTPUT_FORMAT, OUTPUT_FORMAT_DESC) VALUES
  ('CO', 'Colour copy'),
  ('MF', 'Microfilm'),
  ('PD', 'PDF'),
  ('PH', 'Photocopy');

INSERT INTO ID_PUBLICATION_TYPE (PUBLICATION_TYPE, PUBLICATION_TYPE_DESC, WEB_FLAG) VALUES
  ('A', 'Audiovisual', NULL),
  ('B', 'Book', 'Y'),
  ('C', 'Conference paper', 'Y'),
  ('J', 'Journal article', 'Y'),
  ('M', 'Map', NULL),
  ('N', 'Newspaper', 'Y'),
  ('P', 'Patent', NULL),
  ('R', 'Report', 'Y'),
  ('S', 'Score', 'Y'),
  ('T', 'Thesis', 'Y');

INSERT INTO ID_SERVICE_LEVEL (SERVICE_LEVEL, SERVICE_LEVEL_DESC, WEB_FLAG) VALUES
  ('C', 'Contract', NULL),
  ('E', 'Express', 'Y'),
  ('U', 'Urgent', 'Y'),
  ('X', 'Normal', 'Y');

INSERT INTO ID_SERVICE_TYPE (SERVICE_TYPE, SERVICE_TYPE_DESC, DELIVERY_TYPE, WEB_FLAG) VALUES
  ('L', 'Loan', 'L', 'Y'),
  ('R', 'Reproduction', 'C', 'Y'),
  ('V', 'Reading room loan', 'L', NULL),
  ('X', 'Loan or reproduction', 'L', 'Y');

INSERT INTO ID_REQUEST_SRC (REQUEST_SRC, REQUEST_SRC_DESC) VALUES
  ('E', 'E-mail'),
  ('F', 'File transfer'),
  ('I', 'Protocol message'),
  ('M', 'Typed in by staff'),
  ('P', 'Post'),
  ('W', 'Web form');

INSERT INTO ID_BIBLIOGRAPHY (BIBLIOGRAPHY, BIBLIOGRAPHY_DESC) VALUES
  ('ARTIC', 'Index of journal articles'),
  ('CONF', 'Index of conference papers'),
  ('MEDIC', 'Index of medicine'),
  ('NATIO', 'National bibliography'),
  ('THESE', 'Index of theses');

INSERT INTO ID_SYSTEM_SOURCE (SYSTEM_SOURCE, SYSTEM_SOURCE_DESC) VALUES
  ('ARTIC', 'Index of articles'),
  ('LOCAL', 'Local catalogue'),
  ('NATIO', 'National catalogue'),
  ('SERIA', 'Catalogue of serials'),
  ('UNION', 'Union catalogue');

INSERT INTO ID_CUSTOMER_ID (CUSTOMER_ID, CUSTOMER_ID_DESC) VALUES
  ('EXTERNAL', 'External libraries'),
  ('INTERNAL', 'Own institution'),
  ('PARTNER', 'Partner libraries');

INSERT INTO ID_ACCESS_GROUP (ACCESS_GROUP, ACCESS_GROUP_DESC) VALUES
  ('ADM', 'Administrators'),
  ('DOC', 'Document delivery staff'),
  ('LON', 'Loan desk'),
  ('PUB', 'Public terminals');

INSERT INTO ID_PATRON_TYPE (PATRON_TYPE, PATRON_TYPE_DESC) VALUES
  ('EX', 'External reader'),
  ('FA', 'Faculty'),
  ('GR', 'Graduate student'),
  ('ST', 'Staff'),
  ('UG', 'Undergraduate student');

-- P and Z are known to the programs: such rows are no actual library.
INSERT INTO ID_LIBRARY_TYPE (LIBRARY_TYPE, LIBRARY_TYPE_DESC) VALUES
  ('G', 'Government library'),
  ('H', 'Hospital library'),
  ('M', 'Municipal library'),
  ('N', 'National library'),
  ('P', 'Patrons (no library)'),
  ('S', 'Special library'),
  ('U', 'University library'),
  ('Z', 'System (no library)');

INSERT INTO ID_LIBRARY_CAT (LIBRARY_CAT, LIBRARY_CAT_DESC) VALUES
  ('BR', 'Branch of the own institution'),
  ('CO', 'Consortium member'),
  ('FO', 'Foreign library'),
  ('NA', 'National library of deposit'),
  ('OT', 'Other library');

INSERT INTO ID_STATS_CAT_LIB (STATS_CAT_LIB, STATS_CAT_LIB_DESC) VALUES
  ('COL', 'College'),
  ('COM', 'Company'),
  ('GOV', 'Government'),
  ('MED', 'Medicine'),
  ('PUB', 'Public library'),
  ('RES', 'Research library'),
  ('TEC', 'Technology');

INSERT INTO ID_VORN_SERVICE (VORN_SERVICE, VORN_SERVICE_DESC) VALUES
  ('1', 'Loans and copies'),
  ('2', 'Copies'),
  ('3', 'Loans');

INSERT INTO ID_BILLING_TYPE (BILLING_TYPE, BILLING_TYPE_DESC) VALUES
  ('C', 'Credit card'),
  ('D', 'Deposit account'),
  ('F', 'Free of charge'),
  ('I', 'Invoice'),
  ('V', 'Vouchers');

INSERT INTO ID_CREDIT_CARD (CREDIT_CARD, CREDIT_CARD_DESC) VALUES
  ('BC', 'Bank card'),
  ('CC', 'Company card'),
  ('GC', 'Government card'),
  ('UC', 'University card');

INSERT INTO ID_BILLING_RATE (BILLING_RATE, BILLING_RATE_DESC, INVOICE_FLAG_OVR) VALUES
  ('A', 'Academic libraries', NULL),
  ('C', 'Companies', 'Y'),
  ('N', 'No charge', 'N'),
  ('R', 'Reciprocal partners', NULL);

-- ISO 4217; units of the currency for one unit of the base.
INSERT INTO ID_CURRENCY_CODE (CURRENCY_CODE, CURRENCY_CODE_DESC, CURRENCY_COUNTRY, CURRENCY_EXCHANGE, CURRENCY_SYMBOL, CURRENCY_BASE) VALUES
  ('AUD', 'Australian Dollar', 'Australia', 1.6600, '$', NULL),
  ('CAD', 'Canadian Dollar', 'Canada', 1.4800, '$', NULL),
  ('CNY', 'Yuan Renminbi', 'China', 7.8300, '¥', NULL),
  ('EUR', 'Euro', 'European Union', 1.0000, '€', '*'),
  ('GBP', 'Pound Sterling', 'United Kingdom', 0.8600, '£', NULL),
  ('HKD', 'Hong Kong Dollar', 'Hong Kong', 8.4600, '$', NULL),
  ('JPY', 'Yen', 'Japan', 163.0000, '¥', NULL),
  ('MXN', 'Mexican Peso', 'Mexico', 18.4000, '$', NULL),
  ('NZD', 'New Zealand Dollar', 'New Zealand', 1.7700, '$', NULL),
  ('SGD', 'Singapore Dollar', 'Singapore', 1.4600, '$', NULL),
  ('USD', 'US Dollar', 'United States', 1.0800, '$', NULL);

-- Country calling codes of two digits (ITU-T E.164), with a leading zero where the code has one digit.
INSERT INTO ID_COUNTRY_CODE (COUNTRY_CODE, COUNTRY_REGION) VALUES
  ('44', 'UK'),
  ('30', 'EU'), ('31', 'EU'), ('32', 'EU'), ('33', 'EU'), ('34', 'EU'), ('36', 'EU'), ('39', 'EU'), ('40', 'EU'),
  ('43', 'EU'), ('45', 'EU'), ('46', 'EU'), ('48', 'EU'), ('49', 'EU'),
  ('01', 'RW'), ('20', 'RW'), ('27', 'RW'), ('41', 'RW'), ('47', 'RW'), ('51', 'RW'), ('52', 'RW'), ('54', 'RW'),
  ('55', 'RW'), ('56', 'RW'), ('57', 'RW'), ('60', 'RW'), ('61', 'RW'), ('62', 'RW'), ('63', 'RW'), ('64', 'RW'),
  ('65', 'RW'), ('66', 'RW'), ('81', 'RW'), ('82', 'RW'), ('84', 'RW'), ('86', 'RW'), ('90', 'RW'), ('91', 'RW');

INSERT INTO ID_STAT_LOCATION (STAT_LOCATION, STAT_LOCATION_DESC) VALUES
  ('C', 'Clearing house'),
  ('L', 'Lending library'),
  ('P', 'Patron'),
  ('R', 'Requesting library'),
  ('S', 'Stacks');

INSERT INTO ID_STAT_FUNCTION (STAT_FUNCTION, STAT_FUNCTION_DESC, STAT_FUNCTION_DISP) VALUES
  ('A', 'Request accepted', 'Y'),
  ('D', 'Document delivered', 'Y'),
  ('F', 'Forwarded to the next supplier', 'Y'),
  ('N', 'Note added', 'N'),
  ('R', 'Request rejected', 'Y'),
  ('S', 'Request searched', 'N');

INSERT INTO ID_LOAN_CODE (LOAN_CODE, LOAN_CODE_DESC, LON_PERIOD, REN_PERIOD, REN_MSG, RR_MSG, REC_MSG, OV1_PERIOD, OV1_MSG, OV2_PERIOD, OV2_MSG, OV3_PERIOD, OV3_MSG, FIN_PERIOD, FIN_MSG) VALUES
  ('N', 'NORMAL LOAN', 28, 14, 'Your loan has been renewed.', 'Your loan cannot be renewed. Please return it by the due date.', 'Another reader needs this item. Please return it within seven days.', 7, 'This item is overdue. Please return it.', 14, 'Second reminder: this item is overdue.', 21, 'Third reminder: this item is overdue. A fee may be charged.', 28, 'Final notice: unless the item is returned within ten days the cost of replacement will be charged.'),
  ('R', 'READING ROOM LOAN', 28, NULL, NULL, 'Reading room loans cannot be renewed.', 'This item has been recalled by its owner.', 3, 'This reading room item is overdue.', 7, 'Second reminder: this reading room item is overdue.', NULL, NULL, 14, 'Final notice: the owner of this reading room item has been informed.'),
  ('S', 'SHORT LOAN', 7, 7, 'Your short loan has been renewed once.', 'Short loans can be renewed once only.', 'Another reader needs this item. Please return it at once.', 2, 'This short loan is overdue.', 5, 'Second reminder: this short loan is overdue.', 9, 'Third reminder: this short loan is overdue.', 14, 'Final notice: further requests are held until this item is back.');

INSERT INTO ID_LOAN_STATUS (LOAN_STATUS, LOAN_STATUS_DESC, LOAN_STATUS_COMP, LOAN_STATUS_DISP, LOAN_CHARGE, LOAN_CHARGE_FIXED) VALUES
  ('DAM', 'Returned damaged', 'Y', 'Y', 25.00, 'N'),
  ('LOS', 'Lost', 'Y', 'Y', 60.00, 'Y'),
  ('OVD', 'Overdue', 'N', 'Y', 1.50, 'N'),
  ('REC', 'Recalled', 'N', 'Y', NULL, NULL),
  ('REN', 'Renewed', 'N', 'Y', NULL, NULL),
  ('RET', 'Returned', 'Y', 'Y', NULL, NULL),
  ('SHP', 'Shipped to the requester', 'N', 'N', NULL, NULL);

-- Ids ending in 000 head a group.
INSERT INTO ID_EVENT (EVENT_ID, EVENT_DESC) VALUES
  (0, 'No queue'),
  (1000, 'New requests'),
  (1010, 'New requests to be checked'),
  (1020, 'New requests with incomplete data'),
  (1030, 'New requests waiting for approval'),
  (2000, 'Searching'),
  (2010, 'Catalogue search'),
  (2020, 'Shelf search'),
  (2030, 'Not found on the shelf'),
  (3000, 'Supply'),
  (3010, 'To be copied'),
  (3020, 'To be shipped'),
  (3030, 'Waiting for payment'),
  (4000, 'Suppliers'),
  (4010, 'Sent to a supplier'),
  (4020, 'Conditional answer of a supplier'),
  (4030, 'No supplier left'),
  (5000, 'Loans'),
  (5010, 'Received on loan'),
  (5020, 'Ready for pickup'),
  (5030, 'Overdue loan'),
  (6000, 'Patrons'),
  (6010, 'Waiting for the patron''s answer'),
  (6020, 'Waiting for the patron''s signature'),
  (9000, 'End'),
  (9010, 'Delivered'),
  (9020, 'Rejected'),
  (9030, 'Cancelled');

INSERT INTO ID_EXCEPTION_TYPE (EXCEPTION_TYPE, EXCEPTION_TYPE_DESC) VALUES
  ('B', 'Rejected: bibliographic data'),
  ('C', 'Supplied as a copy'),
  ('L', 'Rejected: not for loan'),
  ('M', 'Supplied on another medium'),
  ('N', 'Note without decision'),
  ('R', 'Rejected'),
  ('S', 'Supplied'),
  ('T', 'Transferred');

INSERT INTO ID_PROCESS_TYPE (PROCESS_TYPE, PROCESS_TYPE_DESC) VALUES
  ('CAN', 'Cancellation'),
  ('DEL', 'Delivery'),
  ('LON', 'Loans'),
  ('REQ', 'Request entry'),
  ('SEA', 'Search'),
  ('SUP', 'Supplier''s answer');

INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE, EXCEPTION_CODE_DESC, EXCEPTION_TYPE, SERVICE_CHARGE) VALUES
  ('BIB', 'Not found as cited', 'B', NULL),
  ('BND', 'At the bindery', 'R', NULL),
  ('CPY', 'Copy supplied', 'S', NULL),
  ('CST', 'Cost exceeds the limit', 'R', NULL),
  ('DUP', 'Duplicate request', 'R', NULL),
  ('INC', 'Incomplete citation', 'B', NULL),
  ('LND', 'Loan supplied', 'S', NULL),
  ('LOS', 'Lost', 'R', NULL),
  ('MCR', 'Microfilm supplied', 'M', 12.50),
  ('NOH', 'Not held', 'R', NULL),
  ('NTE', 'Note to the requester', 'N', NULL),
  ('ONL', 'On loan', 'L', NULL),
  ('PDF', 'Electronic copy supplied', 'C', 8.00),
  ('REF', 'Reference only', 'L', NULL),
  ('TRF', 'Transferred to another library', 'T', NULL);

-- Reason-Unfilled of ISO 10161.
INSERT INTO ID_ISO_UNFILLED (ISO_UNFILLED, ISO_UNFILLED_DESC) VALUES
  (1, 'In use, on loan'),
  (2, 'In process'),
  (3, 'Lost'),
  (4, 'Non circulating'),
  (5, 'Not owned'),
  (6, 'On order'),
  (7, 'Volume or issue not yet available'),
  (8, 'At bindery'),
  (9, 'Lacking'),
  (10, 'Not on shelf'),
  (11, 'On reserve'),
  (12, 'Poor condition'),
  (13, 'Cost exceeds limit'),
  (14, 'Charges'),
  (15, 'Prepayment required'),
  (16, 'Lacks copyright compliance'),
  (17, 'Not found as cited'),
  (18, 'Locations not found'),
  (19, 'On hold'),
  (20, 'Policy problem'),
  (21, 'Mandatory messaging not supported'),
  (22, 'Expiry not supported'),
  (23, 'Requested delivery services not supported'),
  (24, 'Preferred delivery time not possible'),
  (27, 'Other'),
  (28, 'Responder specific');

INSERT INTO ID_EXCEPTION_ISO (EXCEPTION_CODE, ISO_UNFILLED) VALUES
  ('BIB', 17), ('BND', 8), ('CST', 13), ('LOS', 3), ('NOH', 5), ('ONL', 1), ('REF', 4);

INSERT INTO ID_ISO_SERVICE_LEVEL (ISO_SERVICE_SYMBOL, ISO_SERVICE_HANDLING, ISO_SERVICE_SEARCH, SERVICE_LEVEL) VALUES
  ('A', 'Normal', 'Local', 'X'),
  ('B', 'Normal', 'Extended', 'X'),
  ('C', 'Normal', 'Full', 'C'),
  ('D', 'Rush', 'Local', 'U'),
  ('E', 'Rush', 'Extended', 'U'),
  ('F', 'Express', 'Local', 'E'),
  ('G', 'Express', 'Extended', 'E'),
  ('H', 'Express', 'Full', NULL);

INSERT INTO ID_ISO_NAMESPACE (ISO_NAMESPACE, ISO_NAMESPACE_DESC, ISO_NAMESPACE_ADDR) VALUES
  ('DOI', 'Digital Object Identifier', 'SYSTEM_NUMBER'),
  ('ISBN', 'International Standard Book Number', 'ISBN'),
  ('ISIL', 'International identifier for libraries', 'LIBRARY_SYMBOL'),
  ('ISSN', 'International Standard Serial Number', 'ISSN'),
  ('NBN', 'National bibliography number', 'BIBLIOGRAPHY_NUM');

INSERT INTO ID_ILL_SYSTEM (ILL_SYSTEM, ILL_SYSTEM_DESC) VALUES
  ('DOCLINE', 'DOCLINE'),
  ('OSTANA', 'Ostana'),
  ('OTHER', 'Other system'),
  ('RAPID', 'Rapid ILL'),
  ('TALVERNE', 'Talverne');

INSERT INTO ID_ISO18626_VERSION (ISO18626_VERSION, ISO18626_VERSION_DESC) VALUES
  ('1.0', 'ISO 18626:2014'),
  ('1.1', 'ISO 18626:2017'),
  ('1.2', 'ISO 18626:2021');

INSERT INTO ID_ISO18626_AUTHN_TYPE (ISO18626_AUTHN_TYPE, ISO18626_AUTHN_TYPE_DESC) VALUES
  ('APIKEY', 'Key in the header'),
  ('BASIC', 'User and password'),
  ('CERT', 'Client certificate'),
  ('NONE', 'No authentication');

INSERT INTO ID_ISO18626_CONNECT_TYPE (ISO18626_CONNECT_TYPE, ISO18626_CONNECT_TYPE_DESC) VALUES
  ('HTTP', 'HTTP'),
  ('HTTPS', 'HTTPS');

INSERT INTO ID_NCIP_ILS_SYSTEM (NCIP_ILS_SYSTEM, NCIP_ILS_SYSTEM_DESC) VALUES
  ('AVELLIN', 'Avellin'),
  ('ELMSTOR', 'Elmstor'),
  ('FOLDARE', 'Foldare'),
  ('KELDRY', 'Keldry'),
  ('OTHER', 'Other library system');

INSERT INTO ID_NCIP_CONNECT_TYPE (NCIP_CONNECT_TYPE, NCIP_CONNECT_TYPE_DESC) VALUES
  ('HTTP', 'HTTP'),
  ('HTTPS', 'HTTPS'),
  ('SOCKET', 'Socket');

INSERT INTO ID_COPYRIGHT_CMP (COPYRIGHT_CMP, COPYRIGHT_CMP_DESC, SURCHARGE) VALUES
  ('F', 'Fee to the collecting society', 10.50),
  ('G', 'Covered by the guidelines', 0.00),
  ('L', 'Covered by the law', 0.00);

INSERT INTO ID_ITEM_TYPE (ITEM_TYPE, ITEM_CHARGE, ITEM_CHARGE_FIXED, ITEM_TYPE_DESC) VALUES
  ('ART', 8.00, 'Y', 'Article'),
  ('BOK', 15.00, 'Y', 'Book'),
  ('CHP', 8.00, 'Y', 'Chapter of a book'),
  ('MIC', NULL, NULL, 'Microform'),
  ('THS', 20.00, 'N', 'Thesis');

INSERT INTO ID_CATALOG_CODE (CATALOG_CODE, CATALOG_CODE_DESC, CATALOG_LIBRARY_ID) VALUES
  ('LOC', 'Local catalogue', NULL),
  ('UNI', 'Union catalogue', NULL);

INSERT INTO ID_REQUEST_TYPE (REQUEST_TYPE, REQUEST_TYPE_DESC, LIBRARY_ID, INVOICE_FLAG, CUSTOMER_ID) VALUES
  ('ILL', 'Requests of other libraries', NULL, 'Y', 'EXTERNAL'),
  ('PAT', 'Requests of patrons', NULL, 'N', 'INTERNAL'),
  ('REG', 'Regular requests', NULL, 'Y', NULL),
  ('RUS', 'Rush requests', NULL, 'Y', 'PARTNER');

INSERT INTO ID_COVER_INFO (REQUEST_TYPE, HEADER, FOOTER, MESSAGE_1, MESSAGE_2) VALUES
  ('ILL', 'Interlibrary loan', 'Thank you for using our service', NULL, NULL),
  ('PAT', 'Your order', NULL, NULL, NULL),
  ('REG', 'Document delivery', NULL, NULL, NULL),
  ('RUS', 'Document delivery - rush', NULL, NULL, NULL);

-- Requests of nobody are those of this row. No screen lists it as a library, and it cannot be used to log on.
INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME, DATE_ENTERED, LIBRARY_TYPE, FILE_FORMAT, MSG_FORMAT, MSG_METHOD, DELIV_METHOD_COPY, REQUESTS_PROCESSED, WEIGHTING_FACTOR) VALUES
  (9999999, 'Y', 'UNREGISTERED', 'UNREGISTERED REQUESTERS', '2026-01-01 00:00:00', 'Z', 'P', 'T', 'M', 'M', 0, 1.00);
